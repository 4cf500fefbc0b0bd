#pragma once

#include "core/null_platform.h"
#include "core/session.h"
#include "core/start_texts.h"
#include "output/flow_figures.h"

#include <string>
#include <vector>

namespace kestrum::cli {

/// One flow sheet of a session without windows, into which file after file is read. Each finds
/// the sheet as it stands when the program has started, so no file depends on those before it.
class Calc_Sheet {
public:
    /// A metric sheet takes the numbers of the files as metric.
    explicit Calc_Sheet(bool metric);
    Calc_Sheet(const Calc_Sheet&) = delete;
    Calc_Sheet& operator=(const Calc_Sheet&) = delete;
    ~Calc_Sheet() = default;

    /// Loads and calculates a file. False when it is not there or could not be read to its end.
    bool Load(const std::string& path);

    [[nodiscard]] bool Is_Metric() const { return metric_; }

    /// The figures of the file that was loaded last.
    [[nodiscard]] const std::vector<Flow_Figure>& Figures() const { return figures_; }

    /// What the boxes said while it was loaded.
    [[nodiscard]] const std::vector<std::string>& Boxes() const { return platform_.Texts(); }

private:
    bool metric_;
    Null_Platform platform_;
    Session session_;
    Flow_Sheet& sheet_;
    Start_Texts start_texts_;
    std::vector<Flow_Figure> figures_;
};

} // namespace kestrum::cli
