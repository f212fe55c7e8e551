#pragma once

#include "app/DrawDatabase.h"

#include <QAbstractTableModel>
#include <QLocale>

#include <vector>

/// The draws that a search found as a grid: newest first, then spare rows. Reads the result list where it is.
///
/// The grid's row 0 is the heading.
class MatchesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NumberColumn, DateColumn, FirstPickColumn };

    /// @param results  rows 1.. are the draws found, oldest first
    MatchesModel(const std::vector<DrawRecord>& results, const QLocale& locale, QObject* parent = nullptr);

    /// Gives the grid so many rows, its heading among them, and columns for so many picks; all cells are
    /// empty.
    void Build(int gridRows, int picks);
    /// Shows the first @p count rows of the result list, the last of them on top.
    void Fill(int count);
    /// Says in the first row that nothing was found.
    void FillNoMatches();
    /// Empties all cells.
    void Clear();

    /// Rows of the grid with its heading.
    [[nodiscard]] int GridRows() const { return m_gridRows; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void Show(int count, bool noMatches);
    [[nodiscard]] QString CellText(int row, int column) const;

    const std::vector<DrawRecord>& m_results;
    const QLocale& m_locale;
    int m_gridRows = 1;
    int m_columns = 0;
    int m_filled = 0; ///< draws in the cells
    bool m_noMatches = false;
};
