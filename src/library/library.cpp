#include "library/library.h"

#include "chart/chart.h"
#include "library/test_reader.h"
#include "platform/file_store.h"

#include <algorithm>
#include <exception>
#include <system_error>
#include <thread>

namespace kestrum {

namespace {

Library_Peak Peak_Of(const Chart_Curve& curve) {
    if (!curve.peak) {
        return {};
    }
    return {.flow = curve.peak->value, .lift = curve.peak->lift};
}

/// The reading of one folder by several threads, which take test after test.
class Library_Reading {
public:
    Library_Reading(const Library_Request& request, std::vector<Found_Test> tests)
        : request_(request), entries_(tests.size()) {
        for (std::size_t at = 0; at < tests.size(); ++at) {
            entries_[at].file = std::move(tests[at].file);
            entries_[at].format = tests[at].format;
        }
    }

    [[nodiscard]] std::vector<Library_Entry> Run() {
        {
            std::vector<std::jthread> helpers;
            Start(helpers);
            Work();
        }
        if (is_given_up_) {
            entries_.clear();
        }
        return std::move(entries_);
    }

private:
    /// Helpers beside the thread that asks. No processor count makes use of more, and where the
    /// system gives fewer the tests are read by those.
    void Start(std::vector<std::jthread>& helpers) {
        constexpr std::size_t most_jobs = 256;
        const std::size_t jobs = std::min({std::size_t{request_.jobs}, entries_.size(), most_jobs});
        try {
            for (std::size_t job = 1; job < jobs; ++job) {
                helpers.emplace_back([this] { Work(); });
            }
        } catch (const std::system_error&) {
            return;
        }
    }

    void Work() {
        Test_Reader reader(request_.metric);
        while (!is_given_up_) {
            const std::size_t at = next_++;
            if (at >= entries_.size()) {
                return;
            }
            Read(reader, entries_[at]);
            if (request_.goes_on && !request_.goes_on(++read_)) {
                is_given_up_ = true;
            }
        }
    }

    void Read(Test_Reader& reader, Library_Entry& entry) const {
        const std::string path = Join_Path(request_.folder, entry.file);
        entry.stamp = Settled_Stamp(path); // before the reading: a change in between shows later
        if (const Library_Entry* const known = Known(entry)) {
            entry = *known;
            return;
        }
        try {
            Test_Reading reading = reader.Read(path, entry.format);
            if (!reading.figures) {
                entry.problem = std::move(reading.problem);
                return;
            }
            entry.figures = Library_Figures_Of(*reading.figures, entry.file);
            entry.figures.date = Utc_Time_Of_File(path);
        } catch (const std::exception& failure) { // a thread must not end the program
            entry.problem = failure.what();
        }
    }

    /// What is known of a file that has not changed, or null.
    [[nodiscard]] const Library_Entry* Known(const Library_Entry& entry) const {
        const auto found =
            std::ranges::lower_bound(request_.known, entry.file, {}, &Library_Entry::file);
        const bool is_same = found != request_.known.end() && found->file == entry.file &&
                             entry.stamp && found->stamp == entry.stamp;
        return is_same ? &*found : nullptr;
    }

    const Library_Request& request_;
    std::vector<Library_Entry> entries_;
    std::atomic<std::size_t> next_ = 0;
    std::atomic<std::size_t> read_ = 0;
    std::atomic<bool> is_given_up_ = false;
};

} // namespace

Library_Figures Library_Figures_Of(const Test_Figures& test, const std::string& file) {
    const std::array tests{Chart_Test{.file = file, .figures = test}};
    const Chart chart = Curves_Of(tests, {});
    const Chart_Entry& entry = chart.tests.front();
    return {.name = entry.name,
            .intake_valve = test.intake.valve_diameter,
            .exhaust_valve = test.exhaust.valve_diameter,
            .port_volume = test.port_volume,
            .pressure = test.pressure,
            .points = test.flow_rows,
            .intake_peak = Peak_Of(entry.sides.intake),
            .exhaust_peak = Peak_Of(entry.sides.exhaust),
            .intake_mean = entry.sides.intake.mean,
            .exhaust_mean = entry.sides.exhaust.mean,
            .ratio = entry.ratio,
            .date = {},
            .part_number = test.name,
            .intake_valves = test.intake.valves,
            .exhaust_valves = test.exhaust.valves,
            .intake_curve = entry.sides.intake.points,
            .exhaust_curve = entry.sides.exhaust.points};
}

std::vector<Library_Entry> Read_Library(const Library_Request& request,
                                        std::vector<Found_Test> tests) {
    return Library_Reading(request, std::move(tests)).Run();
}

bool Found_The_Same(std::span<const Library_Entry> one, std::span<const Library_Entry> other) {
    return std::ranges::equal(one, other, [](const Library_Entry& a, const Library_Entry& b) {
        return a.file == b.file && a.problem == b.problem && a.stamp == b.stamp &&
               (a.stamp || a.problem);
    });
}

unsigned Usual_Jobs() {
    return std::max(std::thread::hardware_concurrency(), 1U);
}

} // namespace kestrum
