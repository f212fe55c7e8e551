#pragma once

#include "app/SetTable.h"

#include <QAbstractTableModel>

/// The grid of generated sets: the number of the set in the first column, its numbers in the others.
class SetsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int NumberColumn = 0;
    static constexpr int FirstPickColumn = 1;

    explicit SetsModel(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

    /// Gives the grid its heading and so many empty rows.
    /// @param picks  1..10
    /// @param rows   1..21
    void SetUp(int picks, int rows);
    /// Shows sets 1..sets, as far as the grid has rows.
    void Fill(const SetTable& table, int sets);
    /// Empties the cells.
    void Clear();
    /// Writes the numbers in red and bold, or in the colour of all texts.
    void SetRed(bool red);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] QString CellText(const QModelIndex& index) const;
    [[nodiscard]] bool IsRed(const QModelIndex& index) const
    {
        return m_red && index.column() != NumberColumn;
    }

    SetTable m_table{};
    int m_sets = 0; ///< shown
    int m_picks = 0;
    int m_rows = 0;
    bool m_red = false;
};
