#pragma once

#include "app/AppSettings.h"
#include "app/DrawDatabase.h"
#include "tests/QtPrinters.h"

#include <QByteArray>

#include <ostream>

// How GoogleTest writes our values into a failure.

inline void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    constexpr qsizetype kShown = 400;
    *out << bytes.size()
         << " bytes: " << bytes.first(qMin(bytes.size(), kShown)).toPercentEncoding(" ,\"#/").toStdString();
}

inline void PrintTo(const LotteryShape& shape, std::ostream* out)
{
    *out << shape.picks << '/' << shape.highest;
}

inline void PrintTo(const DrawDay& day, std::ostream* out)
{
    *out << '{' << CellText(day.carried).toStdString() << " (kind " << day.carried.index() << "), "
         << CellText(day.weekday).toStdString() << " (kind " << day.weekday.index() << ")}";
}

inline void PrintTo(const DrawRecord& record, std::ostream* out)
{
    *out << '{' << CellText(record.number).toStdString() << ", " << CellText(record.date).toStdString()
         << " (kind " << record.date.index() << ')';
    for (const Cell& drawn : record.drawn) {
        *out << ", " << CellText(drawn).toStdString() << " (kind " << drawn.index() << ')';
    }
    *out << '}';
}

inline void PrintTo(const AppSettings& settings, std::ostream* out)
{
    *out << "{font " << settings.printerFont << ", " << settings.defaultPicks << '/'
         << settings.defaultHighest << ", forms " << settings.entryForms << ", \""
         << settings.currencySymbol.toStdString() << "\", \"" << settings.userName.toStdString() << "\"}";
}
