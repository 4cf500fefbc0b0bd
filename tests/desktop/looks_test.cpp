#include "tests/desktop/desktop_bench.h"

#include <QAction>

#include <gtest/gtest.h>

namespace kestrum::desktop {
namespace {

TEST(Looks, The_Plain_Pointer_Reaches_What_Is_Made_Later) {
    Desktop_Bench bench;
    bench.Widget("Main.Command51")
        .window()
        ->findChild<QAction*>(QStringLiteral("Main.MouseP"))
        ->trigger();
    bench.Open_Sheet();
    bench.Click("Form1.NextPage");
    bench.program.Its_Session().Show(bench.program.Its_Session().Form60());
    for (const std::string_view address :
         {"Main.Text104(3)", "Main.Command51", "Form1.Text104(6)", "Form1.Text207(17)",
          "Form1.Text38", "Form60.Picture1"}) {
        EXPECT_EQ(bench.Widget(address).cursor().shape(), Qt::ArrowCursor) << address;
        for (const QWidget* const part : bench.Widget(address).findChildren<QWidget*>()) {
            EXPECT_EQ(part->cursor().shape(), Qt::ArrowCursor) << address;
        }
    }
}

} // namespace
} // namespace kestrum::desktop
