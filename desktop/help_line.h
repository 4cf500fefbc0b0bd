#pragma once

#include "desktop/text_views.h"

#include <QTimer>

namespace kestrum::desktop {

/// The line at the foot of every window that explains what the mouse is over. It takes one line
/// and lies over the page while a text needs more, so that nothing jumps.
class Help_Line : public QWidget {
public:
    explicit Help_Line(QWidget* parent);

    void Show_Words(const QString& words);
    /// Says why something was refused, over the words, until `Forget`.
    void Tell(const QString& refusal);

    void Forget() { Tell(QString()); }

    /// Tells what a command has done, over the words, for some seconds or until the user goes on.
    void Say(const QString& news);
    /// The user goes on.
    void Forget_All();

    /// What the window keeps free for it.
    [[nodiscard]] int Least_Height() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] const QString& Present() const;

    void Show_Present();
    void Take_Place();

    QString words_;
    QString refusal_;
    QString news_;
    QTimer end_of_news_;
};

/// Lets the help line show the label that the session writes its help texts to.
class Help_Label_View : public Control_View {
public:
    Help_Label_View(Control& its_control, const View_Facts& its_facts, Help_Line& line);

    void Refresh() override;

    QWidget* Widget() override { return &line_; }

private:
    Help_Line& line_;
};

} // namespace kestrum::desktop
