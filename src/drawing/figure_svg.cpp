#include "base/text.h"
#include "drawing/figure.h"

#include <array>
#include <charconv>

namespace kestrum {

namespace {

void Append_Number(std::string& out, double value) {
    constexpr std::size_t longest = 400;
    std::array<char, longest> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   std::chars_format::fixed, 2);
    std::string_view text(digits.data(), static_cast<std::size_t>(end.ptr - digits.data()));
    text = text.substr(0, text.find_last_not_of('0') + 1);
    text = text.ends_with('.') ? text.substr(0, text.size() - 1) : text;
    out += text == "-0" ? "0" : text;
}

void Append_Attribute(std::string& out, std::string_view name, double value) {
    out.append(" ").append(name).append("=\"");
    Append_Number(out, value);
    out += '"';
}

void Append_Colour(std::string& out, std::string_view name, int colour) {
    out.append(" ").append(name);
    if (colour == no_colour) {
        out += "=\"none\"";
        return;
    }
    constexpr std::string_view digits = "0123456789abcdef";
    out += "=\"#";
    for (int shift = 20; shift >= 0; shift -= 4) {
        out += digits[static_cast<unsigned>(colour) >> static_cast<unsigned>(shift) & 0xFU];
    }
    out += '"';
}

void Append_Letters(std::string& out, std::string_view text) {
    constexpr unsigned char first_letter = 0x20;
    for (const char letter : Decoded(text)) {
        switch (letter) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        default:
            if (static_cast<unsigned char>(letter) >= first_letter) {
                out += letter;
            }
        }
    }
}

void Append_Step(std::string& out, const Figure_Path& path) {
    out += "<path d=\"";
    char before = 'M';
    for (const Figure_Point& point : path.points) {
        out += before;
        Append_Number(out, point.x);
        out += ' ';
        Append_Number(out, point.y);
        before = 'L';
    }
    out += path.closed ? "Z\"" : "\"";
    Append_Colour(out, "fill", path.fill);
    if (path.opacity < 1) {
        Append_Attribute(out, "fill-opacity", path.opacity);
    }
    if (path.stroke != no_colour) {
        Append_Colour(out, "stroke", path.stroke);
        Append_Attribute(out, "stroke-width", path.width);
    }
    if (!path.dashes.empty()) {
        out += " stroke-dasharray=\"";
        for (const double length : path.dashes) {
            Append_Number(out, length);
            out += ' ';
        }
        out.back() = '"';
    }
    out += "/>\n";
}

void Append_Step(std::string& out, const Figure_Text& text) {
    static constexpr std::array anchors{"start", "middle", "end"};
    out += "<text";
    if (text.upwards) {
        out += " transform=\"translate(";
        Append_Number(out, text.x);
        out += ' ';
        Append_Number(out, text.y);
        out += ") rotate(-90)\"";
    } else {
        Append_Attribute(out, "x", text.x);
        Append_Attribute(out, "y", text.y);
    }
    Append_Attribute(out, "font-size", text.size);
    out += text.bold ? " font-weight=\"bold\"" : "";
    out.append(" text-anchor=\"")
        .append(anchors.at(static_cast<std::size_t>(text.anchor)))
        .append("\"");
    Append_Colour(out, "fill", text.colour);
    out += '>';
    Append_Letters(out, text.text);
    out += "</text>\n";
}

std::string_view Media_Type(std::string_view bytes) {
    return bytes.starts_with("\x89PNG")    ? "image/png"
           : bytes.starts_with("GIF8")     ? "image/gif"
           : bytes.starts_with("\xFF\xD8") ? "image/jpeg"
                                           : "image/bmp";
}

/// Bytes as letters: 64 of them stand for six bits each.
void Append_Base64(std::string& out, std::string_view bytes) {
    constexpr std::string_view letters =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr unsigned six_bits = 0x3F;
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::string_view group = bytes.substr(at, 3);
        unsigned bits = 0;
        for (std::size_t place = 0; place < 3; ++place) {
            bits =
                bits << 8U | (place < group.size() ? static_cast<unsigned char>(group[place]) : 0U);
        }
        for (std::size_t place = 0; place < 4; ++place) {
            out += place <= group.size() ? letters[bits >> (18 - 6 * place) & six_bits] : '=';
        }
    }
}

void Append_Step(std::string& out, const Figure_Picture& picture) {
    out += "<image";
    Append_Attribute(out, "x", picture.box.left);
    Append_Attribute(out, "y", picture.box.top);
    Append_Attribute(out, "width", picture.box.Width());
    Append_Attribute(out, "height", picture.box.Height());
    out.append(" href=\"data:").append(Media_Type(picture.bytes)).append(";base64,");
    Append_Base64(out, picture.bytes);
    out += "\"/>\n";
}

} // namespace

std::string Figure_Svg(const Figure& figure) {
    std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                      "<svg xmlns=\"http://www.w3.org/2000/svg\"";
    std::string size;
    Append_Number(size, figure.width);
    size += ' ';
    Append_Number(size, figure.height);
    Append_Attribute(out, "width", figure.width);
    Append_Attribute(out, "height", figure.height);
    out += " viewBox=\"0 0 " + size + "\" font-family=\"DejaVu Sans, Arial, sans-serif\" " +
           "stroke-linejoin=\"round\">\n";
    for (const Figure::Step& step : figure.Steps()) {
        std::visit([&out](const auto& kind) { Append_Step(out, kind); }, step);
    }
    out += "</svg>\n";
    return out;
}

} // namespace kestrum
