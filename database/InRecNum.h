#pragma once

#include "app/LGLOBAL.h"

#include <QDialog>
#include <QRadioButton>

#include <array>
#include <memory>

namespace Ui {
class InRecNum;
}

/// Asks which of four tasks the editor shall do and for which record. The answer stands in editMode and
/// SelectedRecord of the shared state; a cancelled one is EditMode::Normal and 0.
class InRecNum : public QDialog
{
    Q_OBJECT

public:
    InRecNum(LGLOBAL& shared, QWidget* mainWindow);
    ~InRecNum() override;

    /// Closed without an answer.
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Choose(EditMode mode);
    void AcceptChoice();

    LGLOBAL& m_shared;
    std::unique_ptr<Ui::InRecNum> m_ui;
    std::array<QRadioButton*, 4> CorInsDel{};
};
