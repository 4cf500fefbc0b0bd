#include "desktop/print_preview.h"

#include "application/events.h"
#include "base/run_time_error.h"
#include "desktop/text_bridge.h"
#include "painting/page_painter.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace kestrum::desktop {

namespace {

class Preview_Window : public QDialog {
public:
    Preview_Window(Desktop_Printers& printers, const std::string& device,
                   const Printable& printable)
        : QDialog(QApplication::activeWindow()),
          printers_(printers),
          device_(device),
          printable_(printable),
          paper_(new QComboBox(this)),
          words_(new QLabel(this)),
          preview_(new QPrintPreviewWidget(&printer_, this)) {
        setObjectName(QStringLiteral("PrintPreview"));
        setWindowTitle(QStringLiteral("Print Preview - ") + printable.title);
        setWindowFlag(Qt::WindowMaximizeButtonHint);
        printer_.setOutputFormat(QPrinter::PdfFormat); // no printer has to be there
        paper_->addItems({QStringLiteral("A4"), QStringLiteral("Letter")});
        paper_->setCurrentIndex(Usual_Paper() == Paper_Size::A4 ? 0 : 1);
        connect(paper_, &QComboBox::currentIndexChanged, this, [this] { Show_Paper(); });
        connect(preview_, &QPrintPreviewWidget::paintRequested, this,
                [this](QPrinter* printer) { static_cast<void>(printable_.paint(*printer)); });
        Lay_Out();
        Show_Paper();
        resize(screen()->availableSize() * 4 / 5);
    }

private:
    void Lay_Out() {
        auto* const row = new QHBoxLayout;
        row->addWidget(new QLabel(QStringLiteral("Paper"), this));
        row->addWidget(paper_);
        Add_Button(*row, QStringLiteral("&Print"), [this] { Send(device_); });
        Add_Button(*row, QStringLiteral("&Save as PDF"), [this] { Send(std::string(pdf_file)); });
        Add_Button(*row, QStringLiteral("Zoom &In"), [this] { preview_->zoomIn(); });
        Add_Button(*row, QStringLiteral("Zoom &Out"), [this] { preview_->zoomOut(); });
        Add_Button(*row, QStringLiteral("Whole P&age"), [this] { preview_->fitInView(); });
        row->addWidget(words_, 1);
        Add_Button(*row, QStringLiteral("&Close"), [this] { accept(); });
        auto* const column = new QVBoxLayout(this);
        column->addLayout(row);
        column->addWidget(preview_, 1);
    }

    void Add_Button(QHBoxLayout& row, const QString& caption, const std::function<void()>& act) {
        auto* const button = new QPushButton(caption, this);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, act);
        row.addWidget(button);
    }

    [[nodiscard]] Paper_Size Paper_Chosen() const {
        return paper_->currentIndex() == 0 ? Paper_Size::A4 : Paper_Size::Letter;
    }

    void Show_Paper() {
        painting::Set_Paper(printer_, Paper_Chosen());
        printer_.setPageOrientation(printable_.landscape ? QPageLayout::Landscape
                                                         : QPageLayout::Portrait);
        preview_->updatePreview();
    }

    /// A failure stays in this window, which can be printed from again.
    void Send(const std::string& device) {
        try {
            if (const auto words = printers_.Send(device, printable_, Paper_Chosen())) {
                words_->setText(*words);
            }
        } catch (const Run_Time_Error& failure) {
            words_->setText(To_Qt(failure.Description()));
        }
    }

    Desktop_Printers& printers_;
    std::string device_;
    const Printable& printable_;
    QPrinter printer_{QPrinter::HighResolution};
    QComboBox* paper_;
    QLabel* words_;
    QPrintPreviewWidget* preview_;
};

/// What prints the document of a screen, or null for one that does not print.
Control* Control_That_Prints(Screen& screen) {
    switch (screen.Kind()) {
    case Screen_Kind::Compare:
        return screen.Find("Command3", std::nullopt);
    case Screen_Kind::Graph:
        return screen.Find("Command2", std::nullopt);
    default:
        return screen.Find("Print_Sheet", std::nullopt);
    }
}

} // namespace

void Show_Print_Preview(Desktop_Printers& printers, const std::string& device,
                        const Printable& printable) {
    Preview_Window(printers, device, printable).exec();
}

void Add_Preview_Entry(QMenuBar& bar, Session& session, Gate& gate, Screen& screen) {
    Control* const control = Control_That_Prints(screen);
    if (control == nullptr) {
        return;
    }
    auto* const menu = bar.findChild<QMenu*>(To_Qt(screen.Name() + ".File"));
    QMenu* const holder = menu != nullptr ? menu : bar.addMenu(QStringLiteral("&Print"));
    QAction* const entry = holder->addAction(QStringLiteral("Print Pre&view..."));
    entry->setObjectName(To_Qt(screen.Name() + ".Preview"));
    QObject::connect(entry, &QAction::triggered, &bar, [&session, &gate, control] {
        gate.Enter([&] {
            if (session.printers != nullptr) {
                session.printers->Preview_Next();
            }
            Click(session, *control);
        });
    });
}

} // namespace kestrum::desktop
