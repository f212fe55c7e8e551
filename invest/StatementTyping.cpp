#include "invest/StatementTyping.h"

#include "app/FieldWriter.h"
#include "invest/InvestmentCalculation.h"

#include <algorithm>

namespace {

bool FitsDescription(QChar character)
{
    return character.category() != QChar::Other_Control && FitsFileText(QStringView(&character, 1));
}

bool FitsAmount(QChar character)
{
    return (character >= u'0' && character <= u'9') || character == u'-' || character == u'.';
}

bool IsBeyondLimit(const StatementPlace& place)
{
    return place.row > kMostStatementRows;
}

} // namespace

InvestmentRow& StatementTyping::Row(const StatementPlace& place) const
{
    return m_rows.at(static_cast<std::size_t>(place.row));
}

Typed StatementTyping::Type(const StatementPlace& place, const QString& text)
{
    if (IsBeyondLimit(place)) {
        return Typed::BeyondLimit;
    }
    QString typed = text;
    typed.remove(u'"'); // it would end the text in the file; passed over in silence, in both columns
    if (place.row < 1 || typed.isEmpty()) {
        return Typed::Nothing;
    }
    const Typed result =
        place.column == StatementPlace::kAmount ? TypeAmount(place, typed) : TypeDescription(place, typed);
    if (result == Typed::Changed) {
        m_last = place;
    }
    return result;
}

Typed StatementTyping::TypeDescription(const StatementPlace& place, const QString& text)
{
    if (!std::all_of(text.cbegin(), text.cend(), FitsDescription)) {
        return Typed::Refused;
    }
    QString& description = Row(place).description;
    // The words of an inserted line only hold its place: what is typed there replaces them. Somebody who
    // types these very words goes on behind them.
    if (description == kBlankLine && m_last != place) {
        description.clear();
    }
    description += text;
    return Typed::Changed;
}

Typed StatementTyping::TypeAmount(const StatementPlace& place, const QString& text)
{
    return std::all_of(text.cbegin(), text.cend(), FitsAmount) ? SetFigures(place, Figures(place.row) + text)
                                                               : Typed::Refused;
}

Typed StatementTyping::Backspace(const StatementPlace& place)
{
    if (IsBeyondLimit(place)) {
        return Typed::BeyondLimit;
    }
    if (place.row < 1) {
        return Typed::Nothing;
    }
    QString text = place.column == StatementPlace::kAmount ? Figures(place.row) : Row(place).description;
    if (text.isEmpty()) {
        return Typed::Nothing;
    }
    text.chop(1);
    m_last = place;
    if (place.column == StatementPlace::kAmount) {
        return SetFigures(place, text);
    }
    Row(place).description = text;
    return Typed::Changed;
}

Typed StatementTyping::SetFigures(const StatementPlace& place, const QString& figures)
{
    std::optional<Currency> amount;
    if (!figures.isEmpty()) {
        amount = Currency::FromText(figures);
        if (!amount) {
            return Typed::Refused; // one figure too many
        }
    }
    Row(place).amount = amount;
    m_figures.at(static_cast<std::size_t>(place.row)) = figures;
    return Typed::Changed;
}

QString StatementTyping::Figures(int row) const
{
    const std::optional<Currency>& amount = m_rows.at(static_cast<std::size_t>(row)).amount;
    const QString& typed = m_figures.at(static_cast<std::size_t>(row));
    if (!amount) {
        return {};
    }
    return !typed.isEmpty() && Currency::FromText(typed) == amount ? typed : amount->Plain();
}

void StatementTyping::LeaveRow(int row)
{
    if (row >= 1 && row <= kMostStatementRows) {
        m_figures.at(static_cast<std::size_t>(row)).clear();
    }
}

void StatementTyping::Forget()
{
    m_figures.fill({});
    m_last = {};
}
