#pragma once

#include "app/LGLOBAL.h"

#include <QString>
#include <QWidget>

/// The system's file dialog under the fileDialogMode of the shared state: odd modes open, even modes save.
class FileDir
{
public:
    FileDir(LGLOBAL& shared, QWidget* mainWindow) : m_shared(shared), m_mainWindow(mainWindow) {}

    /// Shows the dialog and waits. chosenPath is the full path, as typed: no ending is added,
    /// but for PDF files. After a cancel
    /// fileDialogMode is kFileDialogCancelled and chosenPath what it was.
    void FileDirectory();

    /// The filter that a mode shows.
    [[nodiscard]] static QString Filter(qint16 mode);

    /// The file name that a mode proposes.
    [[nodiscard]] static QString ProposedName(const LGLOBAL& shared);

private:
    LGLOBAL& m_shared;
    QWidget* m_mainWindow;
};
