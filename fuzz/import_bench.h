#pragma once

#include "fuzz/fuzz_platform.h"

#include <cstdint>
#include <span>
#include <vector>

namespace kestrum::fuzz {

/// One session for all inputs of an import. After each, the controls that changed get their stored
/// texts back, which is much faster than a new session.
class Import_Bench {
public:
    explicit Import_Bench(bool comma_mode) {
        session_.numbers.comma_mode = comma_mode ? 1 : 0;
        Remember(sheet_, sheet_texts_);
        Remember(session_.Main(), engine_texts_);
    }

    /// Runs an import; it has to end by itself, with its count or with a box that tells why not.
    template <typename Import>
    void Run(Import import) {
        platform_.Answer_By(0);
        const bool done = import(session_, sheet_);
        Require(done || platform_.Boxes() > 0);
        Require(session_.file.records_read >= 0 && session_.file.records_read <= 32767);
        Put_Back(sheet_, sheet_texts_);
        Put_Back(session_.Main(), engine_texts_);
    }

private:
    static void Remember(Screen& screen, std::vector<std::string>& texts) {
        for (const Control& control : screen.Controls()) {
            texts.push_back(control.Text());
        }
        static_cast<void>(screen.Take_Changes());
    }

    static void Put_Back(Screen& screen, const std::vector<std::string>& texts) {
        const auto controls = screen.Controls();
        for (Control* const control : screen.Take_Changes()) {
            Require(control->Is_Text_Box()); // an import reaches nothing else
            Require(Is_Utf8(control->Text()));
            control->Set_Text(texts[static_cast<std::size_t>(control - controls.data())]);
        }
        static_cast<void>(screen.Take_Changes());
    }

    Fuzz_Platform platform_;
    Session session_{platform_, platform_, {}};
    Flow_Sheet& sheet_ = session_.Sheet(1);
    std::vector<std::string> sheet_texts_;
    std::vector<std::string> engine_texts_;
};

/// Hands an input to the bench of its decimal mode. The highest bit of the first byte tells the
/// mode; the import gets the other bits and what follows.
template <typename Import>
int Import_Input(const std::uint8_t* data, std::size_t size, Import import) {
    static Import_Bench dots(false);
    static Import_Bench commas(true);
    if (size == 0) {
        return 0;
    }
    constexpr unsigned comma_bit = 0x80;
    const std::span input(data, size);
    const unsigned bits = input.front();
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1); // NOLINT
    ((bits & comma_bit) != 0 ? commas : dots).Run([&](Session& session, Flow_Sheet& sheet) {
        return import(session, sheet, bits, bytes);
    });
    return 0;
}

} // namespace kestrum::fuzz
