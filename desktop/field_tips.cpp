#include "desktop/field_tips.h"

#include "desktop/colour_scheme.h"
#include "desktop/text_bridge.h"
#include "desktop/theme.h"
#include "painting/figure_painter.h"
#include "presentation/dimension_drawing.h"
#include "presentation/field_help.h"

#include <QApplication>
#include <QMenuBar>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace kestrum::desktop {

namespace {

constexpr QRgb without_alpha = 0xFFFFFF;

int Plain(QRgb colour) {
    return static_cast<int>(colour & without_alpha);
}

/// The drawing in the colours that are in force, as large as its window allows.
class Dimension_Window : public QWidget {
public:
    explicit Dimension_Window(QWidget* parent) : QWidget(parent, Qt::Window) {
        setAttribute(Qt::WA_DeleteOnClose);
        setWindowTitle(QStringLiteral("Where Each Dimension Is Measured"));
        setAccessibleName(windowTitle());
        setAccessibleDescription(
            QStringLiteral("A drawing of valve, seat and port; the same is told of each cell in "
                           "its tip and in the manual."));
        const Figure figure = Dimension_Drawing({});
        resize(QSize(qRound(figure.width), qRound(figure.height)));
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const Colour_Scheme& scheme = theme::Colours();
        const Figure figure = Dimension_Drawing({.ground = Plain(scheme.window),
                                                 .ink = Plain(scheme.ink),
                                                 .metal = Plain(scheme.line),
                                                 .mark = Plain(scheme.accent)});
        QPainter painter(this);
        painter.fillRect(rect(), QColor::fromRgb(scheme.window));
        const double scale = std::min(width() / figure.width, height() / figure.height);
        painter.translate((width() - figure.width * scale) / 2,
                          (height() - figure.height * scale) / 2);
        painter.scale(scale, scale);
        painting::Paint_Figure(figure, painter);
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Escape) {
            close();
        }
        QWidget::keyPressEvent(event);
    }
};

/// The text of a cell that is too narrow for it.
QString Cut_Text(const Control& cell, const QWidget& widget) {
    const QString text = To_Qt(cell.Text());
    const bool fits = cell.Entry().many_lines || widget.fontMetrics().horizontalAdvance(text) <=
                                                     widget.width() - 2 * theme::text_padding;
    return fits ? QString() : text;
}

} // namespace

Field_Tips::Field_Tips(Program& program) : program_(program) {
    Desktop_Windows& windows = program.Its_Windows();
    windows.on_new_window = [this, before = windows.on_new_window](Screen_Window& window,
                                                                   const Screen& screen) {
        if (before) {
            before(window, screen);
        }
        Add_Drawing_Entry(window, screen);
    };
    qApp->installEventFilter(this);
}

bool Field_Tips::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ToolTip && watched->isWidgetType()) {
        return Show_Tip(*static_cast<QWidget*>(watched), *static_cast<QHelpEvent*>(event));
    }
    return false;
}

bool Field_Tips::Show_Tip(QWidget& widget, const QHelpEvent& event) {
    const Control* const cell = Cell_Of(widget);
    if (cell == nullptr) {
        return false;
    }
    const bool metric = program_.Its_Session().Main().Check2.Value() != 0;
    const QString help = To_Qt(Help_Words(*cell, metric));
    if (help.isEmpty()) {
        return false;
    }
    QStringList lines{Cut_Text(*cell, widget), widget.toolTip(), help};
    lines.removeAll(QString());
    // As rich text it is broken into lines of a readable length.
    const QString text = lines.join(QLatin1Char('\n')).toHtmlEscaped();
    QToolTip::showText(event.globalPos(),
                       QStringLiteral("<p>") +
                           QString(text).replace(QLatin1Char('\n'), QLatin1String("<br>")) +
                           QStringLiteral("</p>"),
                       &widget);
    return true;
}

const Control* Field_Tips::Cell_Of(const QWidget& widget) {
    const Control* found = nullptr;
    program_.Its_Session().For_Each_Loaded([&](Screen& screen) {
        const Screen_Window* const window = program_.Its_Windows().Window_Of(screen);
        if (window == nullptr || window != widget.window()) {
            return;
        }
        for (const Control& control : screen.Controls()) {
            Control_View* const view = control.Is_Text_Box() ? window->View_Of(control) : nullptr;
            const QWidget* const its = view == nullptr ? nullptr : view->Widget();
            if (its != nullptr && (its == &widget || its->isAncestorOf(&widget))) {
                found = &control;
            }
        }
    });
    return found;
}

void Field_Tips::Add_Drawing_Entry(Screen_Window& window, const Screen& screen) {
    auto* const bar = window.findChild<QMenuBar*>();
    if (screen.Kind() != Screen_Kind::Sheet || bar == nullptr) {
        return;
    }
    QMenu* help = nullptr;
    for (const QAction* const menu : bar->actions()) {
        help = menu->text() == QLatin1String("&Help") ? menu->menu() : help;
    }
    help = help == nullptr ? bar->addMenu(QStringLiteral("&Help")) : help;
    QAction* const entry = help->addAction(QStringLiteral("Where Each &Dimension Is Measured"));
    entry->setObjectName(To_Qt(screen.Name() + ".Dimensions"));
    connect(entry, &QAction::triggered, &window, [&window] {
        auto* const drawing = new Dimension_Window(&window);
        drawing->show();
    });
}

} // namespace kestrum::desktop
