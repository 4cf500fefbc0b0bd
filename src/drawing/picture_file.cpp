#include "drawing/picture_file.h"

#include "base/run_time_error.h"
#include "platform/open_file.h"

#include <cstdint>
#include <string_view>

namespace kestrum {

namespace {

struct Size {
    std::uint64_t width = 0;
    std::uint64_t height = 0;
};

std::uint64_t Byte_At(std::string_view bytes, std::size_t offset) {
    return offset < bytes.size() ? static_cast<unsigned char>(bytes[offset]) : 0U;
}

std::uint64_t Little_Endian(std::string_view bytes, std::size_t offset, std::size_t length) {
    std::uint64_t value = 0;
    while (length-- > 0) {
        value = value << 8U | Byte_At(bytes, offset + length);
    }
    return value;
}

std::uint64_t Big_Endian(std::string_view bytes, std::size_t offset, std::size_t length) {
    std::uint64_t value = 0;
    for (std::size_t index = 0; index < length; ++index) {
        value = value << 8U | Byte_At(bytes, offset + index);
    }
    return value;
}

/// The height of a picture stored from the top down is negative.
std::uint64_t Magnitude(std::uint64_t height) {
    constexpr std::uint64_t sign = 0x80000000;
    return (height & sign) != 0 ? (sign << 1U) - height : height;
}

/// Takes the size of the whole file too: the header of a cut-off one promises more than there is.
Size Bitmap_Size(std::string_view head, std::uint64_t file_size) {
    const Size size{.width = Little_Endian(head, 18, 4),
                    .height = Magnitude(Little_Endian(head, 22, 4))};
    const bool packed = Little_Endian(head, 30, 4) != 0;
    const std::uint64_t row = (size.width * Little_Endian(head, 28, 2) + 31) / 32 * 4;
    const bool complete = packed || Little_Endian(head, 10, 4) + row * size.height <= file_size;
    return complete ? size : Size{};
}

/// Goes from marker to marker; what lies between them, such as a small picture or a colour profile,
/// is passed over unread.
Size Jpeg_Size(const Open_File& file) {
    constexpr int most_markers = 4096;
    constexpr std::size_t longest_head = 9;
    std::uint64_t offset = 2;
    for (int markers = 0; markers < most_markers; ++markers) {
        const std::string head = file.Piece(offset, longest_head);
        if (head.size() < longest_head || Byte_At(head, 0) != 0xFF) {
            break;
        }
        const std::uint64_t marker = Byte_At(head, 1);
        const bool is_frame =
            marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
        if (is_frame) {
            return {.width = Big_Endian(head, 7, 2), .height = Big_Endian(head, 5, 2)};
        }
        offset += 2 + Big_Endian(head, 2, 2);
    }
    return {};
}

Size Size_In_Header(const Open_File& file) {
    constexpr std::size_t longest_head = 64;
    const std::string head = file.Piece(0, longest_head);
    if (head.starts_with("BM")) {
        return Bitmap_Size(head, file.Size());
    }
    if (head.starts_with("GIF87a") || head.starts_with("GIF89a")) {
        return {.width = Little_Endian(head, 6, 2), .height = Little_Endian(head, 8, 2)};
    }
    if (head.starts_with("\x89PNG\r\n")) {
        return {.width = Big_Endian(head, 16, 4), .height = Big_Endian(head, 20, 4)};
    }
    return head.starts_with("\xFF\xD8\xFF") ? Jpeg_Size(file) : Size{};
}

} // namespace

std::optional<Picture_Size> Size_Of_Picture_File(const std::string& path) {
    // Nobody's logo is larger, and a bad header must not cost all the memory.
    constexpr std::uint64_t most_pixels = 1U << 26U;
    constexpr std::uint64_t longest_side = 1U << 15U;
    try {
        const Size size = Size_In_Header(Open_To_Read(path));
        if (size.width == 0 || size.height == 0 || size.width > longest_side ||
            size.height > longest_side || size.width * size.height > most_pixels) {
            return std::nullopt;
        }
        return Picture_Size{.width = static_cast<int>(size.width),
                            .height = static_cast<int>(size.height)};
    } catch (const Run_Time_Error&) {
        return std::nullopt;
    }
}

} // namespace kestrum
