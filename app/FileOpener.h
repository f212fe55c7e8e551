#pragma once

#include <QObject>
#include <QString>

#include <functional>

/// Opens the files that the desktop hands to the running program: macOS names them in events and not on the
/// command line. While a dialog waits for its answer, or the program works, a file is refused with a beep.
class FileOpener : public QObject
{
    Q_OBJECT

public:
    /// Works as long as it lives, from the event loop, with the absolute path of each file.
    explicit FileOpener(std::function<void(const QString& path)> open);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void(const QString& path)> m_open;
};
