#pragma once

#include "app/LGLOBAL.h"

#include <QMenu>

/// The files last opened or saved, as a menu. Each entry shows the file's name, and its folder in the tip;
/// the list is read when the menu opens, and no file in it is touched before it is chosen.
class RecentFilesMenu : public QMenu
{
    Q_OBJECT

public:
    /// @param shared  says where the list is kept
    explicit RecentFilesMenu(const LGLOBAL& shared, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The user has chosen a file, which need not be there any more.
    void Chosen(const QString& path);

private:
    void Build();
    void AddFile(const QString& path, int place, bool nameIsTwice);

    const LGLOBAL& m_shared;
};
