#pragma once

#include <QPoint>
#include <QWidget>

/// How far a dialog stands from the main window's left and top edge, in twips.
struct DialogOffsets {
    QPoint smallLayout;
    QPoint largeLayout;
};

/// Moves a dialog to its place beside the edge of the main window it belongs to, as far as the screen has
/// room: a dialog is never left out of sight. Without a main window it stays where it is.
void PlaceDialog(QWidget& dialog, const QWidget* mainWindow, qint32 layoutSize, const DialogOffsets& offsets);
