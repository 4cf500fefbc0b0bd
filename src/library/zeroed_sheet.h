#pragma once

#include "chart/test_figures.h"
#include "core/null_platform.h"
#include "core/session.h"
#include "core/start_texts.h"
#include "exchange/test_formats.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace kestrum {

/// A sheet of a session without windows into which test after test is read. Each finds the lift
/// rows empty, and a header whose sample texts can be told from what a file names.
class Zeroed_Sheet {
public:
    /// A metric sheet takes the numbers of the files as metric; its figures are in US units too.
    explicit Zeroed_Sheet(bool metric);
    Zeroed_Sheet(const Zeroed_Sheet&) = delete;
    Zeroed_Sheet& operator=(const Zeroed_Sheet&) = delete;
    ~Zeroed_Sheet() = default;

    /// Reads a file's bytes and calculates them. Nothing when the reader gives the file up or its
    /// numbers cannot be converted.
    [[nodiscard]] std::optional<Test_Figures> Read(const std::string& path, Test_Format format,
                                                   std::string_view bytes);

    /// Calculates inputs that lie on another sheet of the same unit system, all of them named.
    [[nodiscard]] std::optional<Test_Figures> Take(const Screen& other);

    /// What the boxes said of the last test, in one line.
    [[nodiscard]] std::string Problem() const;

private:
    void Mark_Header();
    void Start_Over();
    void Empty_Results();
    void Fill_Empty_Header();
    void Note_Unnamed();
    [[nodiscard]] std::optional<Test_Figures> Finished();

    bool metric_;
    Null_Platform platform_;
    Session session_;
    Flow_Sheet& sheet_;

    /// Inputs of the header with the texts that stand there before a file is read.
    struct Header_Cell {
        Control* cell;
        std::string text;
        bool is_marked = false;
    };

    std::vector<Header_Cell> header_;
    std::vector<Control*> results_; // of the lift rows
    std::vector<const Control*> unnamed_;
    std::deque<Start_Texts> start_texts_;
};

} // namespace kestrum
