#pragma once

#include "chart/test_figures.h"
#include "library/folder_walk.h"
#include "platform/file_stamp.h"

#include <atomic>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kestrum {

/// The most flow of a side, and where it is.
struct Library_Peak {
    std::optional<double> flow; // cfm at 28 inches
    std::optional<double> lift; // inches

    bool operator==(const Library_Peak&) const = default;
};

/// What the library says of a test; nothing where the test does not say it.
struct Library_Figures {
    std::string name;
    std::optional<double> intake_valve;  // inches
    std::optional<double> exhaust_valve; // inches
    std::optional<double> port_volume;   // of the intake, in cubic centimetres
    std::optional<double> pressure;      // inches of water
    int points = 0;
    Library_Peak intake_peak;
    Library_Peak exhaust_peak;
    std::optional<double> intake_mean;
    std::optional<double> exhaust_mean;
    std::optional<double> ratio;
    std::string date; // of the file, in UTC

    // What the window alone shows.
    std::string part_number;
    std::optional<double> intake_valves; // of a cylinder
    std::optional<double> exhaust_valves;
    std::vector<Lift_Point> intake_curve; // the measured flow
    std::vector<Lift_Point> exhaust_curve;

    bool operator==(const Library_Figures&) const = default;
};

struct Library_Entry {
    std::string file;
    Test_Format format = Test_Format::Dat;
    /// Why it could not be read; the figures say nothing then.
    std::optional<std::string> problem;
    Library_Figures figures;
    /// The number of an open sheet, 0 for a file.
    int sheet = 0;
    /// Of the file as it was read, where it tells a later content from this one.
    std::optional<File_Stamp> stamp;

    bool operator==(const Library_Entry&) const = default;
};

/// How a folder is read.
struct Library_Request {
    std::string folder;
    bool metric = false; // the numbers of `.dat` files
    unsigned jobs = 1;
    /// Told of each test that was read, from any thread; false gives the rest up.
    std::function<bool(std::size_t read)> goes_on{};
    /// What an earlier reading of the folder has found, by the bytes of the names: a file that is
    /// still the same is not read again.
    std::span<const Library_Entry> known{};
};

/// A part of the library's figures from a test's.
[[nodiscard]] Library_Figures Library_Figures_Of(const Test_Figures& test, const std::string& file);

/// The tests of a walk in its order. Each job has a session of its own.
[[nodiscard]] std::vector<Library_Entry> Read_Library(const Library_Request& request,
                                                      std::vector<Found_Test> tests);

/// Whether two readings of a folder have found the same.
[[nodiscard]] bool Found_The_Same(std::span<const Library_Entry> one,
                                  std::span<const Library_Entry> other);

/// As many jobs as the machine has processors.
[[nodiscard]] unsigned Usual_Jobs();

} // namespace kestrum
