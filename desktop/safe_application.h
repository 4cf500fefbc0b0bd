#pragma once

#include <QApplication>

#include <functional>
#include <string>

namespace kestrum::desktop {

/// The toolkit's application with a net below every event handler. Qt ends the program when an
/// exception leaves a paint event, a timer or the closing of a window; here it is told instead.
class Safe_Application : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;

    /// Takes what an event handler let out.
    std::function<void(const std::string&)> on_fault;

    /// The running application, or null when it is another one.
    [[nodiscard]] static Safe_Application* Present();
};

} // namespace kestrum::desktop
