#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <functional>
#include <utility>

/// Accepts every message box that comes up while it lives, and keeps what the boxes said.
class MessageBoxes
{
public:
    MessageBoxes()
    {
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                texts.append(box->windowTitle() + ": " + box->text());
                box->accept();
            }
        });
        timer.start(5);
    }

    /// "Title: text" of each box since the last call.
    QStringList take() { return std::exchange(texts, {}); }

private:
    QTimer timer;
    QStringList texts;
};

/// Runs what opens a modal dialog, does something with the dialog, and closes it if it is still
/// open. False if no such dialog has come up.
template <typename Dialog>
bool whileOpen(const std::function<void()> &open, const std::function<void(Dialog *)> &act)
{
    bool opened = false;
    QTimer::singleShot(0, qApp, [&] {
        if (auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget())) {
            opened = true;
            act(dialog);
            dialog->close();
        }
    });
    open();
    QCoreApplication::processEvents(); // the timer is still due if nothing waited for events
    return opened;
}
