#pragma once

#include <QString>

#include <optional>

/// An amount of money with four decimals, exact: a whole number of ten-thousandths, never a binary fraction.
/// It reaches from -922,337,203,685,477.5808 to 922,337,203,685,477.5807.
class Currency
{
public:
    constexpr Currency() = default;

    [[nodiscard]] static constexpr Currency FromTenThousandths(qint64 count)
    {
        Currency amount;
        amount.m_tenThousandths = count;
        return amount;
    }

    /// The leading number of a text, as LeadingNumber finds it; 0 when there is none. Of more than four
    /// decimals the amount is rounded on the decimal digits, halves to the even neighbour.
    /// @return nothing for a number beyond the range.
    [[nodiscard]] static std::optional<Currency> FromText(QStringView text);

    [[nodiscard]] constexpr qint64 TenThousandths() const { return m_tenThousandths; }

    /// The amount as files hold it and as it is typed: "-12.5", "0.5", "1234"; "." as the point in every
    /// locale, no digit more than it takes.
    [[nodiscard]] QString Plain() const;

    constexpr bool operator==(const Currency&) const = default;
    constexpr bool operator<(const Currency& other) const
    {
        return m_tenThousandths < other.m_tenThousandths;
    }

private:
    qint64 m_tenThousandths = 0;
};

/// The two together; nothing when the sum is beyond the range.
[[nodiscard]] std::optional<Currency> Sum(Currency one, Currency other);
