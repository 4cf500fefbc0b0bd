#pragma once

#include "chart/test_figures.h"
#include "library/zeroed_sheet.h"

#include <memory>
#include <optional>
#include <string>

namespace kestrum {

/// A test that was read, or the reason why it could not be.
struct Test_Reading {
    std::optional<Test_Figures> figures;
    std::string problem;
};

/// Reads tests of every format one after the other. A thread has its own.
class Test_Reader {
public:
    /// With `metric` the numbers of `.dat` files are metric, which the files do not say.
    explicit Test_Reader(bool metric) : metric_(metric) {}

    [[nodiscard]] Test_Reading Read(const std::string& path, Test_Format format);

    /// The same for a name whose ending tells the format.
    [[nodiscard]] Test_Reading Read(const std::string& path);

private:
    [[nodiscard]] Zeroed_Sheet& Sheet_For(Test_Format format);

    bool metric_;
    std::unique_ptr<Zeroed_Sheet> us_sheet_;
    std::unique_ptr<Zeroed_Sheet> metric_sheet_;
};

} // namespace kestrum
