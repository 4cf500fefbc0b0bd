#include "cli/graph_painter.h"

#include "platform/run_time_error.h"

#include <dlfcn.h>

namespace kestrum::cli {

namespace {

Painter* Load_Painter() {
    using Maker = Painter* (*)();
    // Looked for beside the program, by the run path that the program is linked with.
    void* const module = ::dlopen("kestrum-painting.so", RTLD_NOW | RTLD_LOCAL);
    void* const maker = module == nullptr ? nullptr : ::dlsym(module, "Kestrum_Painter");
    if (maker == nullptr) {
        throw Run_Time_Error(error::invalid_picture,
                             "This program has no painting: " + std::string(::dlerror()));
    }
    return reinterpret_cast<Maker>(maker)();
}

} // namespace

std::string Late_Painter::Picture_Of(const Drawing& drawing, Picture_Format format,
                                     const std::optional<Placed_Logo>& logo) {
    if (painter_ == nullptr) {
        painter_ = Load_Painter();
    }
    return painter_->Picture_Of(drawing, format, logo);
}

} // namespace kestrum::cli
