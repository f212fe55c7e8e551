#include "invest/LostAmounts.h"

#include <QStringList>

using namespace Qt::StringLiterals;

std::vector<int> RowsThatLoseTheirAmount(const InvestmentTable& rows)
{
    std::vector<int> lost;
    for (int row = 1; row <= kMostStatementRows; ++row) {
        const InvestmentRow& item = rows.at(static_cast<std::size_t>(row));
        if (item.amount && item.description.isEmpty()) {
            lost.push_back(row);
        }
    }
    return lost;
}

QString LostAmountsText(const std::vector<int>& rows)
{
    if (rows.size() == 1) {
        return u"Row %1 has an amount but no description, so the amount would be lost. Type a description, "
               u"or "
               u"erase the amount."_s.arg(rows.front());
    }
    QStringList numbers;
    for (const int row : rows) {
        numbers << QString::number(row);
    }
    const QString last = numbers.takeLast();
    return u"Rows %1 and %2 have amounts but no descriptions, so the amounts would be lost. Type "
           u"descriptions, "
           u"or erase the amounts."_s.arg(numbers.join(u", "_s), last);
}
