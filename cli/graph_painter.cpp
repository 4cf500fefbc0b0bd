#include "cli/graph_painter.h"

#include "base/run_time_error.h"
#include "platform/program_module.h"

namespace kestrum::cli {

namespace {

Painter* Load_Painter() {
    using Maker = Painter* (*)();
    const Module_Routine maker = Routine_Of_Module("kestrum-painting", "Kestrum_Painter");
    if (maker.routine == nullptr) {
        throw Run_Time_Error(error::invalid_picture,
                             "This program has no painting: " + maker.failure);
    }
    return reinterpret_cast<Maker>(maker.routine)();
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

std::string Late_Painter::Picture_Of(std::span<const Figure> pages, Picture_Format format) {
    return Loaded().Picture_Of(pages, format);
}

void Late_Painter::Use(const Picture_Settings& settings) {
    Loaded().Use(settings);
}

std::string Late_Painter::Pdf_Of(const Document& document, Paper_Size paper) {
    return Loaded().Pdf_Of(document, paper);
}

} // namespace kestrum::cli
