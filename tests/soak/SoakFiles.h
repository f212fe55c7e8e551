#pragma once

#include <QString>
#include <QStringList>

/// Files for the soak to open, good and bad, and places to save to.
class SoakFiles
{
public:
    /// Fills the folder. @return whether all is in its place.
    [[nodiscard]] bool Make(const QString& folder);

    [[nodiscard]] const QStringList& Databases() const { return m_databases; }
    [[nodiscard]] const QStringList& Statements() const { return m_statements; }
    [[nodiscard]] QString Folder() const { return m_folder; }

private:
    bool Put(const QString& name, const QByteArray& bytes, QStringList& list);

    QString m_folder;
    QStringList m_databases;
    QStringList m_statements;
};
