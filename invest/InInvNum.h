#pragma once

#include "app/LGLOBAL.h"

#include <QDialog>

#include <memory>

namespace Ui {
class InInvNum;
}

/// Asks at which row of the statement a blank line goes in. What was typed stands in insertRowText of the
/// shared state; after a cancel that is "".
class InInvNum : public QDialog
{
    Q_OBJECT

public:
    /// @param row  the grid's current row, which stands in the box at first
    InInvNum(LGLOBAL& shared, int row, QWidget* mainWindow);
    ~InInvNum() override;

    /// Closed without an answer.
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void AcceptRow();

    LGLOBAL& m_shared;
    std::unique_ptr<Ui::InInvNum> m_ui;
};
