#include "painting/svg_writer.h"

#include "painting/layers.h"
#include "painting/picture_area.h"

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
    for (std::size_t index = text.size() - 1; index > 0; --index, rest >>= 4U) {
        text[index] = digits[rest & 0xFU];
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

std::string Stroke(const Line_Pen& pen) {
    std::string text = Attribute("stroke", Colour(pen.colour));
    text += Attribute("stroke-width", pen.width);
    // As Qt draws them: lengths of dash and gap in widths of the pen.
    if (pen.style == Line_Style::Dash) {
        text += Attribute("stroke-dasharray", Number(pen.width * 4) + " " + Number(pen.width * 2));
    } else if (pen.style == Line_Style::Dot) {
        text += Attribute("stroke-dasharray", Number(pen.width) + " " + Number(pen.width * 2));
    }
    if (pen.end == Line_End::Square) {
        text += Attribute("stroke-linecap", "square") + Attribute("stroke-linejoin", "miter");
    } else if (pen.end == Line_End::Round) {
        text += Attribute("stroke-linecap", "round") + Attribute("stroke-linejoin", "round");
    }
    return text;
}

std::string Place_Of(const QPainterPath::Element& element) {
    return Number(element.x) + " " + Number(element.y);
}

/// The outlines as a path's description.
std::string Description_Of(const QPainterPath& path) {
    std::string text;
    for (int index = 0; index < path.elementCount(); ++index) {
        const QPainterPath::Element element = path.elementAt(index);
        switch (element.type) {
        case QPainterPath::MoveToElement:
            text += "M";
            break;
        case QPainterPath::LineToElement:
            text += "L";
            break;
        case QPainterPath::CurveToElement:
            text += "C";
            break;
        case QPainterPath::CurveToDataElement:
            text += " "; // the second and third points of the curve
            break;
        }
        text += Place_Of(element);
    }
    return text;
}

class Svg_Step_Painter : public Step_Painter {
public:
    explicit Svg_Step_Painter(std::string& file) : file_(file) {}

    void Lines(const QPolygonF& points, const Line_Pen& pen) override {
        std::string text;
        for (const QPointF& point : points) {
            text += (text.empty() ? "" : " ") + Number(point.x()) + "," + Number(point.y());
        }
        file_ += "<polyline" + Stroke(pen) + Attribute("points", text) + "/>\n";
    }

    void Circle(QPointF centre, double radius, const Line_Pen& pen) override {
        file_ += "<circle" + Attribute("cx", centre.x()) + Attribute("cy", centre.y()) +
                 Attribute("r", radius) + Attribute("fill", "#ffffff") + Stroke(pen) + "/>\n";
    }

    void Panel(const QRectF& box) override {
        file_ += "<rect" + Attribute("x", box.left()) + Attribute("y", box.top()) +
                 Attribute("width", box.width()) + Attribute("height", box.height()) +
                 Attribute("fill", "#ffffff") + Attribute("fill-opacity", veil) + "/>\n";
    }

    void Text(const Set_Text& text) override {
        if (text.halo > 0) {
            file_ += "<path" + Attribute("stroke", "#ffffff") + Attribute("stroke-opacity", veil) +
                     Attribute("stroke-width", text.halo) +
                     Attribute("d", Description_Of(text.Outlines())) + "/>\n";
        }
        file_ += "<text" + Place_Of(text) + Attribute("font-size", text.Height()) +
                 Attribute("fill", text.colour.name().toStdString()) + ">" + Escaped(text.text) +
                 "</text>\n";
    }

private:
    /// The anchor, so that a reader with another font keeps to it.
    static std::string Place_Of(const Set_Text& text) {
        static constexpr std::array shares{0.0, 0.5, 1.0};
        static constexpr std::array anchors{"start", "middle", "end"};
        const auto index = static_cast<std::size_t>(text.anchor);
        const double x = text.left + text.width * shares.at(index);
        std::string place = Attribute("text-anchor", anchors.at(index));
        if (text.squeeze == 1) {
            return place + Attribute("x", x) + Attribute("y", text.baseline);
        }
        return place +
               Attribute("transform", "translate(" + Number(x) + "," + Number(text.baseline) +
                                          ") scale(" + Number(text.squeeze, 4) + ",1)");
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

std::string Head(const QRectF& area) {
    const std::string left = Number(area.left());
    const std::string top = Number(area.top());
    const std::string width = Number(area.width());
    const std::string height = Number(area.height());
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<svg xmlns=\"http://www.w3.org/2000/svg\"" +
           Attribute("width", width) + Attribute("height", height) +
           Attribute("viewBox", left + " " + top + " " + width + " " + height) + ">\n<rect" +
           Attribute("x", left) + Attribute("y", top) + Attribute("width", width) +
           Attribute("height", height) + " fill=\"#ffffff\"/>\n";
}

/// What the steps of a drawing have in common.
constexpr std::string_view group = "<g fill=\"none\" stroke=\"none\" stroke-linejoin=\"bevel\" "
                                   "font-family=\"DejaVu Sans, Arial, sans-serif\" "
                                   "xml:space=\"preserve\">\n";

} // namespace

std::string Svg_Bytes(const Drawing& drawing, const std::optional<Logo_Picture>& logo) {
    std::string text = Head(Area_Of(drawing));
    Svg_Step_Painter steps(text);
    const Layers layers(drawing);
    text += group;
    layers.Paint_Graph(steps);
    text += "</g>\n";
    if (logo) {
        text += Logo(*logo);
    }
    text += group;
    layers.Paint_Hand_Drawing(steps);
    return text + "</g>\n</svg>\n";
}

} // namespace kestrum::painting
