#pragma once

#include "app/DrawDatabase.h"

#include <QAbstractTableModel>
#include <QLocale>

/// The records of a database as a grid: newest first, then spare rows. Reads the records where they are.
///
/// The grid's row 0 is the heading. Building the grid gives it 24 rows more than there are records; adding
/// records uses the spare ones up until the grid is built anew.
class RecordsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NumberColumn, DateColumn, FirstPickColumn };

    RecordsModel(const DrawDatabase& database, const QLocale& locale, QObject* parent = nullptr);

    /// Gives the grid its rows and columns for the records and shape of now; all cells are empty.
    void Build();
    /// Writes all records into the cells.
    void Fill();
    /// Empties all cells.
    void Clear();

    /// Rows of the grid with its heading.
    [[nodiscard]] int GridRows() const { return m_gridRows; }

    /// The record shown in a row below the heading (0-based); 0 for a spare row.
    [[nodiscard]] int RecordInRow(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] QString CellText(int record, int column) const;

    const DrawDatabase& m_database;
    const QLocale& m_locale;
    int m_gridRows = 1;
    int m_columns = 0;
    int m_filled = 0; ///< records in the cells
};
