#pragma once

#include <QDate>
#include <QDebug>
#include <QString>
#include <QStringList>

#include <ostream>

// How GoogleTest writes Qt values into a failure. Included by every test that compares them.

/// Between quotes and with escapes, so that blanks at the ends and characters without a shape can be seen.
inline void PrintTo(const QString& text, std::ostream* out)
{
    QString shown;
    QDebug(&shown).nospace() << text;
    *out << shown.toStdString();
}

inline void PrintTo(const QStringList& texts, std::ostream* out)
{
    *out << "(";
    for (qsizetype i = 0; i < texts.size(); ++i) {
        *out << (i == 0 ? "" : ", ");
        PrintTo(texts.at(i), out);
    }
    *out << ")";
}

inline void PrintTo(QDate date, std::ostream* out)
{
    *out << (date.isValid() ? date.toString(Qt::ISODate).toStdString() : "no date");
}
