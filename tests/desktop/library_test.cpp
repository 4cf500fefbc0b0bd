#include "desktop/library_window.h"
#include "desktop/text_bridge.h"
#include "tests/desktop/desktop_bench.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QTest>

#include <gtest/gtest.h>

namespace kestrum::desktop {
namespace {

/// The window on a folder of three tests, opened by its key from Main.
class Library : public ::testing::Test {
protected:
    Library() {
        tests.Write("small.dat", "Text102_0 = Small port\r\nText102_1 = 150\r\n"
                                 "Text101_17 = 100\r\nText106_17 = 61\r\nText107_17 = 40\r\n");
        tests.Write("large.csv", "lift,intake,exhaust\n.1,70,50\n.2,130,90\n");
        tests.Write("broken.flw", "a\nb\nc\n0\nno test\n");
        QWidget* const main = bench.Widget("Main.Command1").window();
        static_cast<void>(QTest::qWaitForWindowActive(main));
        QTest::keyClick(main, Qt::Key_L, Qt::ControlModifier);
        for (QWidget* const top : QApplication::topLevelWidgets()) {
            if (auto* const library = dynamic_cast<Library_Window*>(top)) {
                window = library;
            }
        }
    }

    void SetUp() override {
        ASSERT_NE(window, nullptr);
        table = window->findChild<QTableView*>();
        window->Open_Folder(To_Qt(tests.Path()));
        ASSERT_TRUE(Comes_To("large.csv|Small port|NO Flow Infomation Found!!!"));
    }

    /// The names in the list from above.
    [[nodiscard]] std::string Names() const {
        std::string names;
        for (int row = 0; row < table->model()->rowCount(); ++row) {
            names +=
                (row == 0 ? "" : "|") + From_Qt(table->model()->index(row, 0).data().toString());
        }
        return names;
    }

    [[nodiscard]] bool Comes_To(const std::string& names) {
        constexpr int long_enough = 8000;
        const bool comes = QTest::qWaitFor([&] { return Names() == names; }, long_enough);
        EXPECT_EQ(Names(), names);
        return comes;
    }

    void Double_Click(int row) {
        table->setCurrentIndex(table->model()->index(row, 0));
        Q_EMIT table->doubleClicked(table->currentIndex());
    }

    Temp_Folder tests;
    Desktop_Bench bench;
    Library_Window* window = nullptr;
    QTableView* table = nullptr;
};

TEST_F(Library, Follows_The_Folder_The_Filter_And_The_Head_Of_A_Column) {
    table->selectRow(1);
    tests.Write("sub.csv", "lift,intake\n.1,90\n.2,140\n");
    ASSERT_TRUE(Comes_To("large.csv|Small port|sub.csv|NO Flow Infomation Found!!!"));
    EXPECT_EQ(table->selectionModel()->selectedRows().value(0).row(), 1); // what was chosen
    for (QLineEdit* const line : window->findChildren<QLineEdit*>()) {
        if (!line->isReadOnly()) {
            QTest::keyClicks(line, QStringLiteral("PORT small"));
            EXPECT_EQ(Names(), "Small port");
            line->clear();
        }
    }
    table->horizontalHeader()->setSortIndicator(Library_Model::Place_Of("intake_peak"),
                                                Qt::DescendingOrder);
    EXPECT_EQ(Names(), "sub.csv|large.csv|Small port|NO Flow Infomation Found!!!");
}

TEST_F(Library, A_Test_Opens_In_A_Free_Sheet_And_Asks_Before_It_Takes_The_Place_Of_Another) {
    bench.Open_Sheet();
    ASSERT_TRUE(Comes_To("E7TE|large.csv|Small port|NO Flow Infomation Found!!!"));
    Double_Click(2);
    EXPECT_EQ(bench.Text("Form1.Text102(0)"), "E7TE");
    EXPECT_EQ(bench.Text("Form2.Text102(0)"), "Small port");
    EXPECT_EQ(bench.Text("Form2.Text106(18)"), "0"); // the sample's row
    ASSERT_TRUE(Comes_To("E7TE|Small port|large.csv|Small port|NO Flow Infomation Found!!!"));
    bench.Enter("Form1.Text102(0)", "Mine");
    const std::string question =
        "question box [Yes, No]: Flow Test 1 is open and holds \"Mine\".\r\n\r\n"
        "Shall \"Small port\" take its place? Undo brings it back.";
    table->setCurrentIndex(table->model()->index(3, 0));
    bench.dialogs.Answer(Box_Answer::No);
    window->Open_Current_In(1);
    EXPECT_EQ(bench.Text("Form1.Text102(0)"), "Mine");
    bench.dialogs.Answer(Box_Answer::Yes);
    window->Open_Current_In(1);
    EXPECT_EQ(bench.Take_Events(), (Events{question, question}));
    EXPECT_EQ(bench.Text("Form1.Text106(17)"), "61");
    QTest::keyClick(bench.Widget("Form1.Text102(0)").window(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(bench.Text("Form1.Text102(0)"), "Mine");
}

TEST_F(Library, Opens_Where_It_Was_With_Its_Columns_In_Their_Order) {
    QHeaderView* const head = table->horizontalHeader();
    const int part = Library_Model::Place_Of("date");
    head->moveSection(head->visualIndex(part), 1);
    window->setGeometry(11, 13, 777, 444);
    const QPoint place = window->pos();
    window->close();
    const Library_Window again(bench.program.Its_Session(), bench.program.Its_Gate());
    const auto* const columns = again.findChild<QTableView*>()->horizontalHeader();
    EXPECT_EQ(columns->visualIndex(part), 1);
    EXPECT_EQ(columns->visualIndex(Library_Model::Place_Of("file")),
              head->visualIndex(Library_Model::Place_Of("file")));
    EXPECT_EQ(again.pos(), place);
    EXPECT_GE(again.width(), 777);
}

TEST_F(Library, Metric_Files_Are_Remembered_With_Their_Folder_And_Not_Put_Among_Inches) {
    auto* const metric = window->findChild<QCheckBox*>();
    metric->click();
    ASSERT_TRUE(metric->isChecked());
    const QModelIndex lift = table->model()->index(1, Library_Model::Place_Of("intake_peak_lift"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return lift.data().toString() == QLatin1String("3.937"); }));
    EXPECT_EQ(From_Qt(lift.data().toString()), "3.937"); // 100 mm
    Double_Click(1);
    EXPECT_EQ(
        bench.Take_Events(),
        Events{"exclamation box: The numbers of this folder are metric, and the program is in "
               "US units.\r\n\r\nTick Metric on Main first."});
    const Temp_Folder other;
    window->Open_Folder(To_Qt(other.Path()));
    EXPECT_FALSE(metric->isChecked());
    Library_Window again(bench.program.Its_Session(), bench.program.Its_Gate());
    again.Open_Folder(To_Qt(tests.Path()));
    EXPECT_TRUE(again.findChild<QCheckBox*>()->isChecked());
}

} // namespace
} // namespace kestrum::desktop
