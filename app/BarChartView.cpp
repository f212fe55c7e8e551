#include "app/BarChartView.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QFontInfo>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Tells assistive programs that this is a chart. While a bar is marked, it is what they speak of.
class AccessibleChart : public QAccessibleWidget
{
public:
    explicit AccessibleChart(BarChartView* view) : QAccessibleWidget(view, QAccessible::Chart) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        const auto* view = qobject_cast<const BarChartView*>(widget());
        if (kind == QAccessible::Description && view != nullptr && view->MarkedBar() >= 0) {
            return view->MarkedInWords();
        }
        return QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object)
{
    auto* view = qobject_cast<BarChartView*>(object);
    return view == nullptr ? nullptr : new AccessibleChart(view);
}

} // namespace

BarChartView::BarChartView(QWidget* parent) : QWidget(parent)
{
    QAccessible::installFactory(&MakeAccessible); // once is enough, and more does no harm
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void BarChartView::SetChart(const BarChart& chart)
{
    m_chart = chart;
    m_layout.reset();
    Mark(-1);
    setAccessibleName(chart.title);
    setAccessibleDescription(ChartInWords(chart));
    update();
}

const ChartLayout& BarChartView::Places() const
{
    if (!m_layout) {
        m_layout = LayOutChart(m_chart, Area(), ChartFont(), this);
    }
    return *m_layout;
}

QString BarChartView::MarkedInWords() const
{
    return m_marked < 0 ? QString() : BarInWords(m_chart, m_chart.bars.at(size_t(m_marked)));
}

QFont BarChartView::ChartFont() const
{
    QFont letters = font();
    letters.setPixelSize(std::max(1, QFontInfo(letters).pixelSize()));
    return letters;
}

QRectF BarChartView::Area() const
{
    const int margin = fontMetrics().height() / 3;
    return QRectF(rect()).adjusted(margin, margin, -margin, -margin);
}

QSize BarChartView::sizeHint() const
{
    constexpr QSize kLetters(40, 24); // ten bars with three dimensions, title and words
    return kLetters * QFontInfo(font()).pixelSize();
}

QSize BarChartView::minimumSizeHint() const
{
    constexpr QSize kLetters(14, 12); // of ten bars, each number below and each value above
    return kLetters * QFontInfo(font()).pixelSize();
}

void BarChartView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const ChartLook look = LookOnScreen(palette(), ChartFont());
    painter.fillRect(rect(), look.ground);
    PaintChart(painter, Places(), m_chart, look, m_marked);
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void BarChartView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_layout.reset();
}

void BarChartView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_layout.reset();
        updateGeometry();
    }
    update();
}

void BarChartView::Mark(int bar)
{
    if (bar == m_marked) {
        return;
    }
    m_marked = bar;
    update();
    QAccessibleEvent said(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&said);
}

void BarChartView::SayMarked()
{
    if (m_marked < 0) {
        QToolTip::hideText();
        return;
    }
    const QRectF bar = Places().bars.at(size_t(m_marked));
    const QPoint above(int(bar.left()), int(bar.top()) - 3 * fontMetrics().height());
    QToolTip::showText(mapToGlobal(above), MarkedInWords(), this);
}

void BarChartView::keyPressEvent(QKeyEvent* event)
{
    const int last = int(m_chart.bars.size()) - 1;
    int bar = m_marked;
    switch (event->key()) {
    case Qt::Key_Right:
        bar = std::min(bar + 1, last);
        break;
    case Qt::Key_Left:
        bar = bar < 0 ? last : std::max(bar - 1, 0);
        break;
    case Qt::Key_Home:
        bar = std::min(0, last);
        break;
    case Qt::Key_End:
        bar = last;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    Mark(bar);
    SayMarked();
}

void BarChartView::mouseMoveEvent(QMouseEvent* event)
{
    Mark(Places().BarAt(event->position()));
}

void BarChartView::mousePressEvent(QMouseEvent* event)
{
    Mark(Places().BarAt(event->position()));
    SayMarked(); // at once, and where there is no hovering
}

void BarChartView::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    Mark(-1);
}

void BarChartView::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    Mark(-1);
}

bool BarChartView::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* help = dynamic_cast<QHelpEvent*>(event);
    const int bar = help == nullptr ? -1 : Places().BarAt(help->pos());
    if (bar < 0) {
        QToolTip::hideText();
        event->ignore();
        return true;
    }
    QToolTip::showText(help->globalPos(), BarInWords(m_chart, m_chart.bars.at(size_t(bar))), this);
    return true;
}
