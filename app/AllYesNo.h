#pragma once

#include "app/LGLOBAL.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class AllYesNo;
}

/// Asks the question questionNumber of the shared state and leaves the answer there: kAnsweredYes, or 0.
class AllYesNo : public QDialog
{
    Q_OBJECT

public:
    AllYesNo(LGLOBAL& shared, QWidget* mainWindow);
    ~AllYesNo() override;

    /// Offers a look at the pages of a printout beside the answers; the question stays open meanwhile.
    void OfferPreview(const std::function<void()>& show);

    /// Closed without an answer: takes the answer that loses nothing.
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Answer(qint16 answer);

    LGLOBAL& m_shared;
    int m_question;
    std::unique_ptr<Ui::AllYesNo> m_ui;
};
