#pragma once

#include <optional>
#include <vector>

namespace kestrum {

struct Lift_Point {
    double lift = 0;
    double value = 0;

    bool operator==(const Lift_Point&) const = default;
};

/// Two lifts that are nearer than this share of themselves are one.
[[nodiscard]] bool Is_Same_Lift(double a, double b);

/// The smooth curve through measured points that never overshoots one of them: cubic pieces whose
/// slopes are the weighted harmonic means of their neighbours' (Fritsch and Carlson). It has no
/// value outside its lifts.
class Monotone_Curve {
public:
    Monotone_Curve() = default;
    /// Lifts ascend. Fewer than two points make no curve.
    explicit Monotone_Curve(std::vector<Lift_Point> points);

    [[nodiscard]] bool Is_There() const { return points_.size() > 1; }

    /// The lifts at its ends; it must be there.
    [[nodiscard]] double First() const { return points_.front().lift; }

    [[nodiscard]] double Last() const { return points_.back().lift; }

    [[nodiscard]] bool Covers(double lift) const;
    [[nodiscard]] std::optional<double> At(double lift) const;

    /// Mean value from one lift to another, exactly from the cubics. Nothing where the range is
    /// empty or the curve does not cover it.
    [[nodiscard]] std::optional<double> Mean(double from, double to) const;

    /// Mean over a valve event whose lift follows a raised cosine up to the peak. Nothing where
    /// the curve lacks a value on the way.
    [[nodiscard]] std::optional<double> Event_Mean(double peak_lift) const;

private:
    void Set_Slopes();
    [[nodiscard]] double Chord(std::size_t piece) const;
    [[nodiscard]] double Width(std::size_t piece) const;
    [[nodiscard]] double End_Slope(std::size_t piece, std::size_t next) const;
    [[nodiscard]] std::size_t Piece_Of(double lift) const;
    /// The integral over a piece from its beginning to a share of it.
    [[nodiscard]] double Area_Up_To(std::size_t piece, double share) const;
    [[nodiscard]] double Within(double lift) const;

    std::vector<Lift_Point> points_;
    std::vector<double> slopes_;
};

} // namespace kestrum
