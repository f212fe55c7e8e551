#include "app/WorkFingerprint.h"

#include <algorithm>
#include <bit>
#include <type_traits>

namespace {

/// Takes values one after the other. Each step can be undone, so that after it two different sums stay
/// different: one value that differs is never overlooked.
class Sum64
{
public:
    void Add(quint64 value)
    {
        constexpr quint64 kOddFactor = 0x9E3779B97F4A7C15U;
        m_sum = (m_sum ^ value) * kOddFactor;
        m_sum ^= m_sum >> 32U;
    }

    void Add(const QString& text)
    {
        Add(static_cast<quint64>(text.size()));
        for (const QChar character : text) {
            Add(character.unicode());
        }
    }

    void Add(const Cell& cell)
    {
        Add(cell.index());
        std::visit(
            [this](const auto& held) {
                using Held = std::decay_t<decltype(held)>;
                if constexpr (std::is_same_v<Held, int>) {
                    Add(static_cast<quint64>(held));
                } else if constexpr (std::is_same_v<Held, double>) {
                    Add(std::bit_cast<quint64>(held));
                } else if constexpr (std::is_same_v<Held, QString>) {
                    Add(held);
                } else if constexpr (std::is_same_v<Held, QDate>) {
                    Add(static_cast<quint64>(held.toJulianDay()));
                }
            },
            cell);
    }

    [[nodiscard]] quint64 Value() const { return m_sum; }

private:
    quint64 m_sum = 1;
};

} // namespace

quint64 Fingerprint(const DrawDatabase& database)
{
    Sum64 sum;
    sum.Add(static_cast<quint64>(database.count));
    sum.Add(static_cast<quint64>(database.columns));
    sum.Add(static_cast<quint64>(database.highest));
    sum.Add(database.title);
    for (const DrawDay& day : database.drawDays) {
        sum.Add(day.carried);
        sum.Add(day.weekday);
    }
    const auto inUse = static_cast<std::size_t>(std::clamp<int>(database.count, 0, kRecordRows - 1));
    for (std::size_t row = 1; row <= inUse; ++row) {
        const DrawRecord& record = database.records.at(row);
        sum.Add(record.number);
        sum.Add(record.date);
        for (const Cell& drawn : record.drawn) {
            sum.Add(drawn);
        }
    }
    return sum.Value();
}

quint64 Fingerprint(const InvestmentTable& rows)
{
    Sum64 sum;
    for (const InvestmentRow& row : rows) {
        sum.Add(row.description);
        sum.Add(row.amount.has_value() ? quint64{1} : quint64{0});
        sum.Add(static_cast<quint64>(row.amount.value_or(Currency()).TenThousandths()));
    }
    return sum.Value();
}
