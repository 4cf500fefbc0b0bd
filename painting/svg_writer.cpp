#include "painting/svg_writer.h"

#include "painting/layers.h"
#include "painting/picture_area.h"
#include "painting/polyline.h"

#include <QBuffer>
#include <QByteArray>

#include <array>
#include <charconv>

namespace kestrum::painting {

namespace {

/// A number to a hundredth of a unit, or finer where it is a factor.
std::string Number(double value, int decimals = 2) {
    std::array<char, 400> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   std::chars_format::fixed, decimals);
    std::string text(digits.data(), end.ptr);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) {
        text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

std::string Attribute(std::string_view name, std::string_view value) {
    return " " + std::string(name) + "=\"" + std::string(value) + "\"";
}

std::string Attribute(std::string_view name, double value) {
    return Attribute(name, Number(value));
}

std::string Colour(int colour) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text = "#000000";
    auto rest = static_cast<unsigned>(colour);
    for (std::size_t at = text.size() - 1; at > 0; --at, rest >>= 4U) {
        text[at] = digits[rest & 0xFU];
    }
    return text;
}

/// Text of a file of this kind: its own marks are written out, and what may not stand there at all
/// is left out.
std::string Escaped(const QString& text) {
    constexpr char16_t first_letter = 0x20;
    constexpr char16_t no_letter = 0xFFFE;
    QString plain;
    for (const QChar letter : text) {
        if (letter.unicode() >= first_letter && letter.unicode() < no_letter) {
            plain += letter;
        }
    }
    return plain.toHtmlEscaped().toStdString();
}

std::string Stroke(const Draw_Operation& line) {
    std::string text = Attribute("stroke", Colour(line.colour));
    text += Attribute("stroke-width", line.width);
    // As Qt draws them: lengths of dash and gap in widths of the pen.
    if (line.style == Line_Style::Dash) {
        text +=
            Attribute("stroke-dasharray", Number(line.width * 4) + " " + Number(line.width * 2));
    } else if (line.style == Line_Style::Dot) {
        text += Attribute("stroke-dasharray", Number(line.width) + " " + Number(line.width * 2));
    }
    return text;
}

class Svg_Step_Painter : public Step_Painter {
public:
    explicit Svg_Step_Painter(std::string& file) : file_(file) {}

    void Lines(std::span<const Draw_Operation> lines) override {
        std::string points;
        for (const QPointF& point : Points_Of(lines)) {
            points += (points.empty() ? "" : " ") + Number(point.x()) + "," + Number(point.y());
        }
        file_ += "<polyline" + Stroke(lines.front()) + Attribute("points", points) + "/>\n";
    }

    void Circle(const Draw_Operation& circle) override {
        file_ += "<circle" + Attribute("cx", circle.x1) + Attribute("cy", circle.y1) +
                 Attribute("r", circle.radius) + Stroke(circle) + "/>\n";
    }

    void Text(const Fitted_Text& text) override {
        // Twice, for readers that know no order of painting within a text.
        file_ += Set(text, Attribute("stroke", "#ffffff") + Attribute("stroke-width", text.halo) +
                               Attribute("aria-hidden", "true"));
        file_ += Set(text, Attribute("fill", Colour(text.colour)));
    }

private:
    /// The length holds with any font. Readers that know no length do as well with the usual font.
    static std::string Set(const Fitted_Text& text, const std::string& look) {
        return "<text" +
               Attribute("transform", "translate(" + Number(text.left) + "," +
                                          Number(text.baseline) + ") scale(" +
                                          Number(text.stretch, 4) + ",1)") +
               Attribute("font-size", text.font.pixelSize() * text.scale) +
               Attribute("letter-spacing", Number(text.spacing, 4)) +
               Attribute("textLength", text.width / text.stretch) +
               Attribute("lengthAdjust", "spacingAndGlyphs") + look + ">" + Escaped(text.text) +
               "</text>\n";
    }

    std::string& file_;
};

/// The dots themselves, so that the file needs no other.
std::string Logo(const Logo_Picture& picture) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.image.save(&buffer, "PNG");
    return "<image" + Attribute("x", picture.left) + Attribute("y", picture.top) +
           Attribute("width", picture.image.width()) + Attribute("height", picture.image.height()) +
           Attribute("href", "data:image/png;base64," + bytes.toBase64().toStdString()) + "/>\n";
}

std::string Head() {
    const std::string left = Number(picture_area::left);
    const std::string top = Number(picture_area::top);
    const std::string width = Number(picture_area::width);
    const std::string height = Number(picture_area::height);
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<svg xmlns=\"http://www.w3.org/2000/svg\"" +
           Attribute("width", width) + Attribute("height", height) +
           Attribute("viewBox", left + " " + top + " " + width + " " + height) + ">\n<rect" +
           Attribute("x", left) + Attribute("y", top) + Attribute("width", width) +
           Attribute("height", height) +
           " fill=\"#ffffff\"/>\n"
           "<g fill=\"none\" stroke-linecap=\"round\" stroke-linejoin=\"round\" "
           "font-family=\"DejaVu Sans, Arial, sans-serif\" "
           "xml:space=\"preserve\">\n";
}

} // namespace

std::string Svg_Bytes(const Drawing& drawing, const std::optional<Logo_Picture>& logo) {
    std::string text = Head();
    Svg_Step_Painter steps(text);
    Paint_In_Layers(drawing, steps);
    text += "</g>\n";
    if (logo) {
        text += Logo(*logo);
    }
    return text + "</svg>\n";
}

} // namespace kestrum::painting
