#include "engine/engine_calculation.h"

#include "base/units.h"

namespace kestrum {

namespace {

/// Where the two unit systems show different decimals.
struct Engine_Formats {
    Format port_speed;
    Format engine_size;
    Format cylinder_size;
    Format piston_speed;
    Format torque;
};

constexpr Engine_Formats us_formats{.port_speed = &Numeric_Text::Fmt_Whole,
                                    .engine_size = &Numeric_Text::Fmt_One_Place,
                                    .cylinder_size = &Numeric_Text::Fmt_Two_Place,
                                    .piston_speed = &Numeric_Text::Fmt_Whole,
                                    .torque = &Numeric_Text::Fmt_Whole};

constexpr Engine_Formats metric_formats{.port_speed = &Numeric_Text::Fmt_Two_Place,
                                        .engine_size = &Numeric_Text::Fmt_Up_To_Five,
                                        .cylinder_size = &Numeric_Text::Fmt_Up_To_Five,
                                        .piston_speed = &Numeric_Text::Fmt_Two_Place,
                                        .torque = &Numeric_Text::Fmt_Two_Place};

/// Inches of piston travel that a port area passes at the limiting speed, per rpm.
constexpr double port_flow = 0.00353678;
/// The figures per litre are taken from those per cubic inch with the whole number, in both modes.
constexpr double cubic_inches_in_litre = 61;

class Engine_Steps {
public:
    Engine_Steps(Session& session, const Units& units, const Engine_Formats& formats)
        : main_(session.Main()), numbers_(session.numbers), units_(units), formats_(formats) {}

    void Port_Speed() const {
        if (main_.Check1.Value() == 0) {
            Put(main_.Text101(3), Compression() * 0.005 + 0.495, &Numeric_Text::Fmt_Four_Place);
        }
        Put(main_.Text102(3), numbers_(main_.Text101(3)) * 1125 * units_.foot, formats_.port_speed);
    }

    void Displacement() const {
        Put(main_.Text106(3), Squared(Bore()) * 0.7854, &Numeric_Text::Fmt_Two_Place);
        Put(main_.Text107(3),
            Squared(Bore()) * 0.7854 * Stroke() * Cylinders() / units_.engine_volume,
            formats_.engine_size);
        Put(main_.Text108(3), numbers_(main_.Text107(3)) / Cylinders(), formats_.cylinder_size);
    }

    /// One of port area and rpm follows from the other, as the user chose.
    void Peak_Power_Speed() const {
        const Real bore = Bore() / units_.inch;
        const Real stroke = Stroke() / units_.inch;
        const Real demand = stroke * Squared(bore) * port_flow;
        if (main_.Check3.Value() == 0) {
            Put(main_.Text109(3),
                numbers_(main_.Text102(3)) / units_.foot * numbers_(main_.Text103(3)) /
                    units_.square_inch / demand,
                &Numeric_Text::Fmt_Whole);
        } else {
            Put(main_.Text103(3),
                demand * Rpm() / (numbers_(main_.Text102(3)) / units_.foot) * units_.square_inch,
                &Numeric_Text::Fmt_Three_Place);
        }
        Put(main_.Text110(3), Rpm() * 1.07, &Numeric_Text::Fmt_Whole);
        Put(main_.Text102(8), stroke * Rpm() * 2 / 12 * units_.foot, formats_.piston_speed);
    }

    void Airflow_Limit() const {
        const Real flow = numbers_(main_.Text103(8)) / units_.cubic_foot;
        const Real efficiency = 0.6446 / (1 - 1 / Power(Compression(), 0.44));
        Put(main_.Text106(8), flow * 2.2 / efficiency * units_.horsepower * (Cylinders() / 8),
            &Numeric_Text::Fmt_Whole);
    }

    void Torque() const {
        const Real ratio = Compression();
        Put(main_.Text107(8),
            (-(Squared(ratio) * 0.00678) + ratio * 0.23 - 0.28) * units_.pound_foot,
            &Numeric_Text::Fmt_Three_Place);
        Put(main_.Text108(8), numbers_(main_.Text107(8)) * cubic_inches_in_litre,
            &Numeric_Text::Fmt_One_Place);
        Put(main_.Text104(8), Cubic_Inches() * numbers_(main_.Text107(8)), formats_.torque);
    }

    void Port_Limit() const {
        Put(main_.Text105(8),
            numbers_(main_.Text104(8)) / units_.pound_foot * 0.88 * Rpm() / 5252 *
                units_.horsepower,
            &Numeric_Text::Fmt_Whole);
    }

    void Specific_Power() const {
        Put(main_.Text109(8), numbers_(main_.Text106(8)) / Cubic_Inches(),
            &Numeric_Text::Fmt_Three_Place);
        Put(main_.Text110(8), numbers_(main_.Text109(8)) * cubic_inches_in_litre,
            &Numeric_Text::Fmt_Three_Place);
    }

private:
    [[nodiscard]] Real Compression() const { return numbers_(main_.Text101(8)); }

    [[nodiscard]] Real Bore() const { return numbers_(main_.Text104(3)); }

    [[nodiscard]] Real Stroke() const { return numbers_(main_.Text105(3)); }

    [[nodiscard]] Real Cylinders() const { return numbers_(main_.Text111(3)); }

    [[nodiscard]] Real Rpm() const { return numbers_(main_.Text109(3)); }

    [[nodiscard]] Real Cubic_Inches() const {
        return numbers_(main_.Text107(3)) * units_.volume_to_inches;
    }

    void Put(Control& target, Real value, Format format) const {
        target.Set_Text((numbers_.*format)(value));
    }

    Engine_Screen& main_;
    const Numeric_Text& numbers_;
    Units units_;
    Engine_Formats formats_;
};

} // namespace

void Calc_Engine(Session& session) {
    Engine_Screen& main = session.Main();
    Control& cylinders = main.Text111(3);
    if (cylinders.Text().empty() || cylinders.Text() == "0") {
        cylinders.Set_Text("8");
    }
    const Engine_Steps steps = main.Is_Metric()
                                   ? Engine_Steps(session, Metric_Units(), metric_formats)
                                   : Engine_Steps(session, Us_Units(), us_formats);
    steps.Port_Speed();
    steps.Displacement();
    steps.Peak_Power_Speed();
    steps.Airflow_Limit();
    steps.Torque();
    steps.Port_Limit();
    steps.Specific_Power();
    main.Note_Calculation();
}

} // namespace kestrum
