#pragma once

#include <string_view>

/// How each verb is called: told with a wrong call and by `--help`, and read by the completion of
/// the shell, which knows no options of its own.
namespace kestrum::cli::usage {

inline constexpr std::string_view script =
    "kestrum-cli script [--folder DIR] [--point C] [--now YYYY-MM-DDTHH:MM:SS]\n"
    "           [--display WxH@DPI] [--printers A,B,C] [--args TEXT] [--locale NAME]\n"
    "           [--rescue] FILE";
inline constexpr std::string_view calc =
    "kestrum-cli calc [--metric] [--csv | --json] FILE.dat...\n"
    "       kestrum-cli calc [--metric] [--csv | --json] --files-from -";
inline constexpr std::string_view convert =
    "kestrum-cli convert FILE... -o FILE|FOLDER [--to dat|dfw|csv]\n"
    "           [--from ptpfa|flw|dfw|dyn|dym|csv|dat] [--engine-analyzer] [--metric]\n"
    "           [--force] [--files-from -]";
inline constexpr std::string_view compare =
    "kestrum-cli compare FROM.dat TO.dat --type 0..17 [--x lift|intake|exhaust]\n"
    "           [--metric] [--csv]";
inline constexpr std::string_view graph =
    "kestrum-cli graph FROM.dat TO.dat --type 0..17 [--x lift|intake|exhaust] [--metric]\n"
    "           [--plus FROM2.dat TO2.dat]... [--y-low N] [--y-high N] [--points] [--quarter]\n"
    "           [--auto-lines] [--caption TEXT]... [--logo PICTURE] [--dpi N] [--paper a4|letter]\n"
    "           -o FILE.(png|svg|pdf|bmp)";
inline constexpr std::string_view print =
    "kestrum-cli print FILE.dat... -o FILE.pdf [--metric] [--company FILE.dcn]\n"
    "           [--logo PICTURE] [--head left|centre|right] [--paper a4|letter]\n"
    "           [--now YYYY-MM-DDTHH:MM:SS] [--locale NAME]\n"
    "       kestrum-cli print --compare FROM.dat TO.dat --type 0..17 [--x lift|intake|exhaust] "
    "-o FILE.pdf ...";
inline constexpr std::string_view report =
    "kestrum-cli report [--main FILE.dta] [--config FILE.cfg]\n"
    "           [--metric] FILE.dat... [-o FILE]";
inline constexpr std::string_view chart =
    "kestrum-cli chart FILE... [-o PICTURE.svg|pdf|png] [--csv | --json]\n"
    "           [--quantity flow|velocity|per-area|cd|effective-cd|swirl]\n"
    "           [--side intake|exhaust|both] [--at PRESSURE] [--to LIFT] [--cam LIFT]\n"
    "           [--step LIFT] [--units us|metric] [--metric]";
inline constexpr std::string_view library =
    "kestrum-cli library FOLDER [--csv | --json] [--where TEXT] [--sort COLUMN] [--jobs N]\n"
    "           [--metric]";

} // namespace kestrum::cli::usage
