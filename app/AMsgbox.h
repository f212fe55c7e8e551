#pragma once

#include "app/LGLOBAL.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class AMsgbox;
}

/// Shows the message messageNumber of the shared state, with the reason below it when there is one.
class AMsgbox : public QDialog
{
    Q_OBJECT

public:
    AMsgbox(const LGLOBAL& shared, QWidget* mainWindow);

    /// The same window for a text that has no number.
    AMsgbox(const LGLOBAL& shared, const QString& text, QWidget* mainWindow);

    ~AMsgbox() override;

    /// Offers to do something about what is told: a second button, which closes the window too.
    void Offer(const QString& caption, const std::function<void()>& deed);

protected:
    void showEvent(QShowEvent* event) override;

private:
    const LGLOBAL& m_shared;
    std::unique_ptr<Ui::AMsgbox> m_ui;
};
