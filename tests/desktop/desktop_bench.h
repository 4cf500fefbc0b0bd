#pragma once

#include "desktop/program.h"
#include "tests/test_bench.h"

#include <QLineEdit>
#include <QString>
#include <QWidget>

#include <string>
#include <string_view>

namespace kestrum::desktop {

/// The desktop program with its real windows and real keys. Boxes and choosers are answered by
/// script, and one that nobody expected fails the test instead of waiting for somebody.
class Desktop_Bench {
public:
    /// The desktop has the user's settings as they come, or as the bench before has left them.
    explicit Desktop_Bench(bool with_left_settings = false);
    ~Desktop_Bench();
    Desktop_Bench(const Desktop_Bench&) = delete;
    Desktop_Bench& operator=(const Desktop_Bench&) = delete;

    Temp_Folder folder;
    Scripted_Platform dialogs;
    Program program;

    /// The widget of a control. Fails the test when there is none.
    [[nodiscard]] QWidget& Widget(std::string_view address);
    [[nodiscard]] QLineEdit& Edit(std::string_view address);
    /// What the session holds.
    [[nodiscard]] std::string Text(std::string_view address);
    [[nodiscard]] Control& At(std::string_view address);

    /// Opens sheet 1 as a user does.
    void Open_Sheet();
    /// The Tab key brings the focus to a field.
    void Tab_To(std::string_view address);
    /// Keys for whatever has the focus.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Type(const char* keys);
    /// Puts a text in the place of the old one, by keys.
    void Enter(std::string_view address, const char* keys);
    void Click(std::string_view address);

    /// What the help line of a window says.
    [[nodiscard]] std::string Help(std::string_view screen);
    /// Address of the control that has the focus.
    [[nodiscard]] std::string Focus() const;

    Events Take_Events() { return dialogs.Take_Events(); }
};

} // namespace kestrum::desktop
