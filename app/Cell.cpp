#include "app/Cell.h"

#include "app/ShortDate.h"
#include "app/TextPictures.h"

QString CellText(const Cell& cell)
{
    if (const int* whole = std::get_if<int>(&cell)) {
        return QString::number(*whole);
    }
    if (const double* real = std::get_if<double>(&cell)) {
        return QString::number(*real, 'g', QLocale::FloatingPointShortest);
    }
    if (const QString* text = std::get_if<QString>(&cell)) {
        return *text;
    }
    if (const QDate* date = std::get_if<QDate>(&cell)) {
        return date->toString(Qt::ISODate);
    }
    return {};
}

double CellNumber(const Cell& cell)
{
    if (const int* whole = std::get_if<int>(&cell)) {
        return *whole;
    }
    if (const double* real = std::get_if<double>(&cell)) {
        return *real;
    }
    return Val(CellText(cell));
}

std::optional<QDate> CellDate(const Cell& cell, const QLocale& locale)
{
    if (const QDate* date = std::get_if<QDate>(&cell)) {
        return date->isValid() ? std::optional<QDate>(*date) : std::nullopt;
    }
    if (const QString* text = std::get_if<QString>(&cell)) {
        return ParseShortDate(*text, locale);
    }
    return std::nullopt;
}
