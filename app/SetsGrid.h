#pragma once

#include "app/SetsModel.h"

#include <QTableView>

/// The grid of generated sets on a form: a heading and ten sets fill its height, more are scrolled to. It is
/// as wide as its picks ask for.
class SetsGrid : public QTableView
{
    Q_OBJECT

public:
    explicit SetsGrid(QWidget* parent = nullptr);

    /// Gives the grid its heading, its width and so many empty rows.
    /// @param picks  1..10; others are held to that range
    /// @param rows   1..21; others are held to that range
    void SetUp(int picks, int rows);
    [[nodiscard]] SetsModel& Sets() { return *m_sets; }

    /// The width for so many picks, 1..10, in pixels.
    [[nodiscard]] int WidthFor(int picks) const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void FitRows();

    SetsModel* m_sets;
};
