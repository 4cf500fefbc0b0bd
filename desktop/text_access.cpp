#include "desktop/text_access.h"

#include "desktop/text_views.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QFontMetrics>

namespace kestrum::desktop {

namespace {

class Text_Access : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit Text_Access(Text_View& view)
        : QAccessibleWidget(&view,
                            view.Is_Figure() ? QAccessible::EditableText : QAccessible::StaticText),
          view_(view) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) {
            return static_cast<QAccessibleTextInterface*>(this);
        }
        return QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QString text(QAccessible::Text which) const override {
        switch (which) {
        case QAccessible::Name:
            return view_.Spoken_Name();
        case QAccessible::Description:
            return Description_Of(view_.control);
        case QAccessible::Value:
            return view_.Shown_Text();
        default:
            return QAccessibleWidget::text(which);
        }
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }

    // The text can be read, not edited; nothing in it is selected piece by piece.

    void selection(int /*index*/, int* start, int* end) const override { *start = *end = 0; }

    [[nodiscard]] int selectionCount() const override { return 0; }

    void addSelection(int /*start*/, int /*end*/) override {}

    void removeSelection(int /*index*/) override {}

    void setSelection(int /*index*/, int /*start*/, int /*end*/) override {}

    [[nodiscard]] int cursorPosition() const override { return 0; }

    void setCursorPosition(int /*position*/) override {}

    [[nodiscard]] QString text(int start, int end) const override {
        return view_.Shown_Text().mid(start, end - start);
    }

    [[nodiscard]] int characterCount() const override {
        return static_cast<int>(view_.Shown_Text().size());
    }

    [[nodiscard]] QRect characterRect(int offset) const override {
        const QFontMetrics metrics = view_.fontMetrics();
        const int left = metrics.horizontalAdvance(view_.Shown_Text().left(offset));
        return {view_.mapToGlobal(QPoint(theme::text_padding + left, 0)),
                QSize(metrics.averageCharWidth(), view_.height())};
    }

    [[nodiscard]] int offsetAtPoint(const QPoint& /*point*/) const override { return -1; }

    void scrollToSubstring(int /*start*/, int /*end*/) override {}

    QString attributes(int /*offset*/, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    Text_View& view_;
};

QAccessibleInterface* Make_Access(const QString& /*class_name*/, QObject* object) {
    auto* const view = dynamic_cast<Text_View*>(object);
    return view == nullptr ? nullptr : new Text_Access(*view);
}

} // namespace

void Install_Text_Access() {
    QAccessible::installFactory(&Make_Access);
}

} // namespace kestrum::desktop
