#pragma once

#include "desktop/control_view.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

namespace kestrum::desktop {

/// A push button whose caption may take several lines.
class Button_View : public Widget_View<QAbstractButton> {
public:
    Button_View(Control& its_control, const View_Facts& its_facts, QWidget* parent);

    void Refresh() override;
    [[nodiscard]] QRect Area_In(const QRect& cell) const override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QRgb Back() const;
    [[nodiscard]] QRgb Ink() const;
    void Paint_Caption(QPainter& painter) const;

    bool is_primary_;
};

class Check_View : public Widget_View<QCheckBox> {
public:
    Check_View(Control& its_control, const View_Facts& its_facts, QWidget* parent);

    void Refresh() override;
    [[nodiscard]] QRect Area_In(const QRect& cell) const override;

protected:
    // The whole line can be hit, not only the caption.
    [[nodiscard]] bool hitButton(const QPoint& place) const override {
        return rect().contains(place);
    }
};

class Option_View : public Widget_View<QRadioButton> {
public:
    Option_View(Control& its_control, const View_Facts& its_facts, QWidget* parent);

    void Refresh() override;
    [[nodiscard]] QRect Area_In(const QRect& cell) const override;

protected:
    [[nodiscard]] bool hitButton(const QPoint& place) const override {
        return rect().contains(place);
    }
};

class Combo_View : public Widget_View<QComboBox> {
public:
    Combo_View(Control& its_control, const View_Facts& its_facts, QWidget* parent);

    void Refresh() override;
    [[nodiscard]] QRect Area_In(const QRect& cell) const override;
};

} // namespace kestrum::desktop
