#pragma once

#include "database/NumberStatistics.h"

#include <QAbstractTableModel>

/// The values of twenty numbers side by side: the heading row holds the numbers, the row below it their
/// values.
class CountsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int kNumbersInGrid = 20;

    /// @param firstNumber  1, 21 or 41
    CountsModel(const NumberTable& counts, int firstNumber, QObject* parent = nullptr);

    /// Writes the heading for the numbers up to @p highest; numbers above it have neither heading nor value.
    void SetUp(int highest);
    /// Writes the values into the cells.
    void Fill();
    /// Empties the cells.
    void Clear();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const NumberTable& m_counts;
    int m_firstNumber;
    int m_highest = 0;
    bool m_filled = false;
};
