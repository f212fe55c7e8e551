#include "app/PrintPreview.h"

#include "ui_PrintPreview.h"

#include <QScreen>
#include <QScrollBar>
#include <QShortcut>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

PrintPreview::PrintPreview(PrintedDocument document, const QPageSize& paper, QWidget* parent)
    : QDialog(parent), m_document(std::move(document)), m_paper(paper),
      m_ui(std::make_unique<Ui::PrintPreview>())
{
    m_ui->setupUi(this);
    setWindowTitle(u"Print Preview - "_s + m_document.name);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_ui->Pages->SetDocument(m_document, m_paper);
    const int last = PageCount(m_document) - 1;
    connect(m_ui->FirstPage, &QPushButton::clicked, this, [this] { TurnTo(0); });
    connect(m_ui->PreviousPage, &QPushButton::clicked, this, [this] { TurnTo(m_page - 1); });
    connect(m_ui->NextPage, &QPushButton::clicked, this, [this] { TurnTo(m_page + 1); });
    connect(m_ui->LastPage, &QPushButton::clicked, this, [this, last] { TurnTo(last); });
    constexpr qreal kZoomStep = 1.25;
    connect(m_ui->ZoomIn, &QPushButton::clicked, this, [this] { ZoomBy(kZoomStep); });
    connect(m_ui->ZoomOut, &QPushButton::clicked, this, [this] { ZoomBy(1 / kZoomStep); });
    connect(m_ui->WholePage, &QPushButton::clicked, this, [this] { FitTo(Fit::Page); });
    connect(m_ui->WholeWidth, &QPushButton::clicked, this, [this] { FitTo(Fit::Width); });
    connect(m_ui->ClosePreview, &QPushButton::clicked, this, &QDialog::accept);
    SetUpKeys();
    // Large enough to read in, and never larger than the screen.
    const QSize screenSize = screen()->availableSize();
    resize(size().boundedTo(screenSize * 9 / 10));
    TurnTo(0);
}

PrintPreview::~PrintPreview() = default;

/// Shortcuts, so that they work wherever the focus is.
void PrintPreview::SetUpKeys()
{
    const QList<std::pair<QKeySequence, QPushButton*>> keys{
        {Qt::Key_Home, m_ui->FirstPage},    {Qt::Key_PageUp, m_ui->PreviousPage},
        {Qt::Key_PageDown, m_ui->NextPage}, {Qt::Key_End, m_ui->LastPage},
        {Qt::Key_Plus, m_ui->ZoomIn},       {Qt::Key_Minus, m_ui->ZoomOut},
    };
    for (const auto& [key, button] : keys) {
        auto* shortcut = new QShortcut(key, this);
        connect(shortcut, &QShortcut::activated, button, [button = button] { button->click(); });
    }
}

void PrintPreview::OnSaveAsPdf(const std::function<void()>& save)
{
    connect(m_ui->SavePdf, &QPushButton::clicked, this, save);
}

void PrintPreview::TurnTo(int page)
{
    const int count = PageCount(m_document);
    m_page = std::clamp(page, 0, std::max(0, count - 1));
    m_ui->Pages->ShowPage(m_page);
    m_ui->PageNumber->setText(u"Page %1 of %2"_s.arg(m_page + 1).arg(count));
    m_ui->ScrollArea->verticalScrollBar()->setValue(0);
    m_ui->FirstPage->setEnabled(m_page > 0);
    m_ui->PreviousPage->setEnabled(m_page > 0);
    m_ui->NextPage->setEnabled(m_page < count - 1);
    m_ui->LastPage->setEnabled(m_page < count - 1);
    ShowZoom(); // a page may lie otherwise than the one before
}

void PrintPreview::ZoomBy(qreal factor)
{
    constexpr qreal kSmallest = 0.2;
    constexpr qreal kLargest = 4;
    m_zoom = std::clamp(m_zoom * factor, kSmallest, kLargest);
    FitTo(Fit::Free);
}

void PrintPreview::FitTo(Fit fit)
{
    m_fit = fit;
    ShowZoom();
}

void PrintPreview::ShowZoom()
{
    const QSize room = m_ui->ScrollArea->maximumViewportSize();
    if (m_fit == Fit::Page) {
        m_zoom = m_ui->Pages->ZoomForPage(room);
    } else if (m_fit == Fit::Width) {
        const int bar = m_ui->ScrollArea->verticalScrollBar()->sizeHint().width();
        m_zoom = m_ui->Pages->ZoomForWidth(room.width() - bar);
    }
    m_ui->Pages->SetZoom(m_zoom);
}

void PrintPreview::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    ShowZoom();
}
