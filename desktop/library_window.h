#pragma once

#include "core/session.h"
#include "desktop/gate.h"
#include "desktop/library_model.h"
#include "desktop/library_notes.h"
#include "desktop/library_reading.h"
#include "desktop/library_table.h"
#include "library/zeroed_sheet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <string>

namespace kestrum::desktop {

/// All tests of a folder in one list. From here they go into a sheet, or several onto a chart.
class Library_Window : public QWidget {
public:
    Library_Window(Session& session, Gate& gate);
    Library_Window(const Library_Window&) = delete;
    Library_Window& operator=(const Library_Window&) = delete;
    ~Library_Window() override;

    /// Reads a folder and remembers it.
    void Open_Folder(const QString& folder);

    /// Opens the test that has the focus in a sheet; 0 stands for the next one that is free.
    void Open_Current_In(int sheet_number);

protected:
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void Make_Content();
    [[nodiscard]] QLayout* Folder_Row();
    [[nodiscard]] QLayout* Look_Row();
    [[nodiscard]] QLayout* Foot_Row();
    void Connect_Timers();
    void Choose_Folder();
    void Choose_Units(bool metric);
    void Keep_Notes() const;
    void Start_Reading(bool is_asked_for);
    void Cancel();
    void Look_At_Reading();
    void Take_Result();
    void Show_Progress();
    void Show_Count();
    void Show_Sheets();
    /// Changes the list and keeps what is chosen in it.
    void Change_List(const std::function<void()>& change);
    [[nodiscard]] std::vector<Library_Entry> Open_Sheets();
    [[nodiscard]] std::string Path_Of(const Library_Entry& entry) const;
    void Open(const Library_Entry& entry, int sheet_number);
    void Show_Chart();

    Session& session_;
    Gate& gate_;
    Library_Notes notes_;
    Library_Reading reading_;
    Library_Model model_;
    QTimer look_;       // at a reading that runs
    QTimer read_again_; // what may have changed
    std::chrono::steady_clock::time_point begun_;
    QString problems_;
    bool is_known_ = false; // the list is that of the folder and its units

    QLineEdit* path_ = nullptr;
    QCheckBox* metric_ = nullptr;
    QLineEdit* words_ = nullptr;
    Library_Table* table_ = nullptr;
    QProgressBar* progress_ = nullptr;
    QPushButton* cancel_ = nullptr;
    QComboBox* sheet_ = nullptr;
    QLabel* count_ = nullptr;
};

} // namespace kestrum::desktop
