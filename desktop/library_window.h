#pragma once

#include "core/session.h"
#include "desktop/gate.h"
#include "desktop/library_model.h"
#include "desktop/library_reading.h"
#include "library/zeroed_sheet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileSystemWatcher>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <string>

namespace kestrum::desktop {

/// All tests of a folder in one list. From here they go into a sheet, or several onto a chart.
class Library_Window : public QWidget {
public:
    Library_Window(Session& session, Gate& gate);

    /// Reads a folder and remembers it.
    void Open_Folder(const QString& folder);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Make_Content();
    [[nodiscard]] QLayout* Folder_Row();
    [[nodiscard]] QLayout* Foot_Row();
    void Make_Table();
    void Choose_Folder();
    void Read_Again();
    void Look_At_Reading();
    void Show_Result();
    void Watch_Folder(const std::vector<Library_Entry>& entries);
    [[nodiscard]] std::vector<Library_Entry> Open_Sheets();
    [[nodiscard]] std::string Path_Of(const Library_Entry& entry) const;
    [[nodiscard]] std::string Note_File() const;
    void Open_In_Sheet(const Library_Entry& entry);
    void Show_Chart();

    Session& session_;
    Gate& gate_;
    Library_Reading reading_;
    Library_Model model_;
    Library_Order order_;
    QFileSystemWatcher watcher_;
    QTimer look_;
    QTimer read_again_;
    QString folder_;

    QLineEdit* path_ = nullptr;
    QCheckBox* metric_ = nullptr;
    QLineEdit* words_ = nullptr;
    QTableView* table_ = nullptr;
    QProgressBar* progress_ = nullptr;
    QPushButton* cancel_ = nullptr;
    QComboBox* sheet_ = nullptr;
    QPushButton* chart_ = nullptr;
    QLabel* count_ = nullptr;
};

/// Adds "Tests > Library" to the menus of `Main`; those of others stay as they are.
void Add_Library_Entry(QMenuBar& bar, Session& session, Gate& gate, Screen& screen);

} // namespace kestrum::desktop
