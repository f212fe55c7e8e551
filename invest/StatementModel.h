#pragma once

#include "app/InvestmentStatement.h"

#include <QAbstractTableModel>

/// A statement as a grid: row r of the statement stands in the grid's row r - 1, below the heading. Reads the
/// statement where it is.
///
/// There is a row for each of the 105, and three more, so that two rows stay empty before the Total of a full
/// statement. Rows beyond those that are counted, typed since or of a damaged file, are shown as they stand,
/// with the Total as it was; it stands three rows below the last counted one, or, where that row is taken,
/// three below the last in use.
class StatementModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { DescriptionColumn, AmountColumn, Columns };

    StatementModel(const InvestmentTable& rows, const Currency& total, QObject* parent = nullptr);

    /// The heading alone, and empty rows.
    void BuildEmpty();
    /// The statement with its Total. @param rowCount  of the counted rows
    void Build(int rowCount);
    /// A cell of the statement was typed into. A Total that stood in its row moves below all that was typed.
    /// @param row  1..105
    void RowTyped(int row);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] QString CellText(int row, int column) const;
    [[nodiscard]] bool StandsOut(int row) const;

    const InvestmentTable& m_rows;
    const Currency& m_total;
    int m_totalRow = 0; ///< from 1; 0 for no Total
};
