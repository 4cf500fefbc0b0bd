#pragma once

#include "cli/convert_options.h"
#include "core/null_platform.h"
#include "core/session.h"
#include "core/start_texts.h"
#include "exchange/dfw_export.h"

#include <string>
#include <vector>

namespace kestrum::cli {

/// One flow sheet of a session without windows, which takes file after file and writes each in
/// another format, by the routines of the screens.
class Convert_Sheet {
public:
    /// A metric sheet takes the numbers of the files as metric.
    explicit Convert_Sheet(bool metric);
    Convert_Sheet(const Convert_Sheet&) = delete;
    Convert_Sheet& operator=(const Convert_Sheet&) = delete;
    ~Convert_Sheet() = default;

    /// Loads and calculates a file. False when it could not be read to its end.
    [[nodiscard]] bool Load(const std::string& path, Test_Format format);

    /// Writes what was loaded. False when no file was written.
    [[nodiscard]] bool Save(const std::string& path, const Convert_Options& options);

    /// What the boxes said since the loading began.
    [[nodiscard]] const std::vector<std::string>& Boxes() const { return platform_.Texts(); }

    /// Adds a word of the batch itself.
    void Note(const std::string& word) { platform_.Note(word); }

    void Start_Over();

private:
    [[nodiscard]] bool Read(const std::string& bytes, Test_Format format);
    [[nodiscard]] std::string Text_In(const Convert_Options& options);
    void Tell_Saved(const Convert_Options& options);
    void Tell_Count(int records, const char* words);

    Null_Platform platform_;
    Session session_;
    Flow_Sheet& sheet_;
    Start_Texts sheet_texts_;
    Start_Texts engine_texts_;
    /// The last `.dfw` file.
    Dfw_File dfw_;
};

} // namespace kestrum::cli
