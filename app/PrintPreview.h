#pragma once

#include "app/Printout.h"

#include <QDialog>
#include <QPageSize>

#include <functional>
#include <memory>

namespace Ui {
class PrintPreview;
}

/// Shows the pages of a printout, one at a time, as they will look on paper.
class PrintPreview : public QDialog
{
    Q_OBJECT

public:
    PrintPreview(PrintedDocument document, const QPageSize& paper, QWidget* parent);
    ~PrintPreview() override;

    /// What the button "Save as PDF" does.
    void OnSaveAsPdf(const std::function<void()>& save);

    [[nodiscard]] const PrintedDocument& Document() const { return m_document; }
    [[nodiscard]] const QPageSize& Paper() const { return m_paper; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    enum class Fit { Page, Width, Free };

    void SetUpKeys();
    void TurnTo(int page);
    void ZoomBy(qreal factor);
    void FitTo(Fit fit);
    void ShowZoom();

    PrintedDocument m_document;
    QPageSize m_paper;
    int m_page = 0;
    Fit m_fit = Fit::Page;
    qreal m_zoom = 1;
    std::unique_ptr<Ui::PrintPreview> m_ui;
};
