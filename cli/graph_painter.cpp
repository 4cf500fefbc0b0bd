#include "cli/graph_painter.h"

#include "base/run_time_error.h"
#include "platform/program_files.h"

#include <dlfcn.h>
#include <filesystem>
#include <string_view>

namespace kestrum::cli {

namespace {

Painter* Load_Painter() {
    using Maker = Painter* (*)();
    constexpr std::string_view name = "kestrum-painting.so";
    // By its whole path: a bare name is looked for in the system's folders.
    const std::filesystem::path path = Program_File(Program_Part::Library, name);
    if (path.empty()) {
        throw Run_Time_Error(error::invalid_picture,
                             "This program has no painting: " + std::string(name) + " is missing");
    }
    void* const module = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* const maker = module == nullptr ? nullptr : ::dlsym(module, "Kestrum_Painter");
    if (maker == nullptr) {
        throw Run_Time_Error(error::invalid_picture,
                             "This program has no painting: " + std::string(::dlerror()));
    }
    return reinterpret_cast<Maker>(maker)();
}

} // namespace

Painter& Late_Painter::Loaded() {
    if (painter_ == nullptr) {
        painter_ = Load_Painter();
    }
    return *painter_;
}

std::string Late_Painter::Picture_Of(const Drawing& drawing, Picture_Format format,
                                     const std::optional<Placed_Logo>& logo) {
    return Loaded().Picture_Of(drawing, format, logo);
}

std::string Late_Painter::Picture_Of(const Figure& figure, Picture_Format format) {
    return Loaded().Picture_Of(figure, format);
}

void Late_Painter::Use(const Picture_Settings& settings) {
    Loaded().Use(settings);
}

std::string Late_Painter::Pdf_Of(const Document& document, Paper_Size paper) {
    return Loaded().Pdf_Of(document, paper);
}

} // namespace kestrum::cli
