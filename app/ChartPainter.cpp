#include "app/ChartPainter.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QLineF>
#include <QPolygonF>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// All distances are parts of the size of the letters, so that a chart looks the same on screen and paper.
constexpr qreal kGap = 0.4;            // between the parts of a chart
constexpr qreal kTickDistance = 2.2;   // least distance between two values at the axis
constexpr qreal kWidestBar = 5;        // a chart of one number is no wall
constexpr qreal kDeepest = 1.3;        // of a bar with three dimensions
constexpr qreal kLine = 1.0 / 14;      // width of a line
constexpr qreal kWordsFrom = 22;       // width and
constexpr qreal kWordsFromHeight = 12; // height from which there is room for words at the axes

QFont Sized(QFont font, qreal size)
{
    font.setPixelSize(std::max(1, qRound(size)));
    return font;
}

/// The words of a title on as many lines as there may be; the last ends in "..." when it holds not all.
QStringList TitleLines(const QString& title, const QFont& font, const QPaintDevice* device, qreal width,
                       int most)
{
    constexpr qsizetype kLongest = 400; // a damaged file may hold a title of any length
    QString text = title.left(kLongest);
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return !c.isPrint(); }, u' ');
    QTextLayout wrapped(text, font, device);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    wrapped.setTextOption(option);
    QStringList lines;
    wrapped.beginLayout();
    for (QTextLine line = wrapped.createLine(); line.isValid(); line = wrapped.createLine()) {
        line.setLineWidth(width);
        if (int(lines.size()) + 1 == most) {
            const QString rest = text.sliced(line.textStart());
            lines << QFontMetricsF(font, device).elidedText(rest, Qt::ElideRight, width);
            break;
        }
        lines << text.sliced(line.textStart(), line.textLength()).trimmed();
    }
    wrapped.endLayout();
    return lines;
}

/// Finds the places one after the other; each step uses those before it.
class Layouter
{
public:
    Layouter(const BarChart& chart, const QRectF& area, const QFont& font, const QPaintDevice* device)
        : m_chart(chart), m_font(font), m_device(device), m_size(std::max(1, font.pixelSize())),
          m_count(qreal(chart.bars.size()))
    {
        m_layout.area = area;
        for (const ChartBar& bar : chart.bars) {
            m_highest = std::max(m_highest, bar.value);
        }
    }

    [[nodiscard]] ChartLayout LayOut()
    {
        PlaceTitle();
        PlaceScale();
        PlaceColumns();
        ChooseLabels();
        ChooseValues();
        PlacePlot();
        PlaceTicks();
        PlaceBars();
        PlaceLabels();
        PlaceValues();
        PlaceWords();
        return std::move(m_layout);
    }

private:
    [[nodiscard]] QFontMetricsF Metrics(const QFont& font) const { return {font, m_device}; }
    [[nodiscard]] qreal Gap() const { return std::ceil(kGap * m_size); }
    [[nodiscard]] qreal LineHeight() const { return std::ceil(Metrics(m_font).height()); }
    [[nodiscard]] bool HasRoomForWords() const
    {
        return m_layout.area.width() >= kWordsFrom * m_size &&
               m_layout.area.height() >= kWordsFromHeight * m_size;
    }

    void PlaceTitle()
    {
        constexpr qreal kLarger = 1.15;
        constexpr qreal kTwoLinesFrom = 14;
        ChartLayout& l = m_layout;
        l.titleFont = Sized(m_font, kLarger * m_size);
        l.titleFont.setBold(true);
        if (!m_chart.title.isEmpty()) {
            const int most = l.area.height() >= kTwoLinesFrom * m_size ? 2 : 1;
            l.titleLines = TitleLines(m_chart.title, l.titleFont, m_device, l.area.width(), most);
        }
        const qreal height = std::ceil(Metrics(l.titleFont).height()) * qreal(l.titleLines.size());
        l.title = QRectF(l.area.left(), l.area.top(), l.area.width(), height);
    }

    void PlaceScale()
    {
        ChartLayout& l = m_layout;
        l.tickFont = m_font;
        constexpr qreal kMostTicks = 10;
        constexpr qreal kOtherLines = 4; // labels, words and values, before their rows are known
        const qreal height = l.area.bottom() - l.title.bottom() - kOtherLines * LineHeight();
        l.scale = AxisScale(m_highest, int(std::min(kMostTicks, height / (kTickDistance * m_size))));
        m_tickWidth = std::ceil(Metrics(l.tickFont).horizontalAdvance(QString::number(l.scale.top)));
    }

    /// Columns of a whole number of units, where there are enough of them, so that all gaps are equal.
    void PlaceColumns()
    {
        constexpr qreal kWholeFrom = 6;
        constexpr qreal kDepthOfSlot = 0.28;
        constexpr qreal kRise = 0.75;
        ChartLayout& l = m_layout;
        qreal left = l.area.left() + m_tickWidth + Gap();
        if (!m_chart.valueAxis.isEmpty() && HasRoomForWords()) {
            left += LineHeight();
        }
        left = std::ceil(left);
        const qreal width = std::max(qreal(1), l.area.right() - left);
        const qreal columns = std::max(qreal(1), m_count);
        if (m_chart.style == BarStyle::ThreeDimensional) {
            const qreal depth =
                std::round(std::clamp(kDepthOfSlot * width / columns, qreal(2), kDeepest * m_size));
            l.depth = QSizeF(depth, std::ceil(kRise * depth));
        }
        l.slot = (width - l.depth.width()) / columns;
        if (l.slot >= kWholeFrom) {
            l.slot = std::floor(l.slot);
        }
        l.plot.setLeft(left);
        l.plot.setWidth(l.slot * columns);
    }

    /// Takes the fewest rows, and then the largest letters, in which no label touches the next.
    void ChooseLabels()
    {
        constexpr int kMostRows = 4;
        constexpr qreal kSmallest = 0.75;
        constexpr qreal kSmallestInOneRow = 0.83;
        constexpr qreal kSpace = 0.3;
        for (int rows = 1; rows <= kMostRows; ++rows) {
            const int smallest = qRound((rows == 1 ? kSmallestInOneRow : kSmallest) * m_size);
            for (int size = m_size; size >= smallest; --size) {
                m_layout.labelRows = rows;
                m_layout.labelFont = Sized(m_font, size);
                if (WidestLabel() + kSpace * size <= rows * m_layout.slot) {
                    return;
                }
            }
        }
    }

    [[nodiscard]] qreal WidestLabel() const
    {
        const QFontMetricsF metrics = Metrics(m_layout.labelFont);
        qreal widest = 0;
        for (const ChartBar& bar : m_chart.bars) {
            widest = std::max(widest, metrics.horizontalAdvance(bar.label));
        }
        return widest;
    }

    [[nodiscard]] qreal WidestValue() const
    {
        const QFontMetricsF metrics = Metrics(m_layout.valueFont);
        qreal widest = 0;
        for (const ChartBar& bar : m_chart.bars) {
            widest = std::max(widest, metrics.horizontalAdvance(QString::number(bar.value)));
        }
        return std::ceil(widest);
    }

    void ChooseValues()
    {
        using Place = ChartLayout::ValuePlace;
        constexpr qreal kSmallest = 0.8;
        constexpr qreal kSmallestUpright = 0.7;
        constexpr qreal kSpace = 0.25;
        ChartLayout& l = m_layout;
        for (int size = m_size; size >= qRound(kSmallest * m_size); --size) {
            l.valueFont = Sized(m_font, size);
            if (WidestValue() + kSpace * size <= l.slot) {
                l.valuePlace = Place::Above;
                m_valueHeight = std::ceil(Metrics(l.valueFont).capHeight()) + Gap();
                return;
            }
        }
        for (int size = m_size; size >= qRound(kSmallestUpright * m_size); --size) {
            l.valueFont = Sized(m_font, size);
            if (std::ceil(Metrics(l.valueFont).capHeight()) + LineWidth() <= l.slot) {
                l.valuePlace = Place::Upright;
                m_valueHeight = WidestValue() + Gap();
                return;
            }
        }
        l.valuePlace = Place::None;
        m_valueHeight = 0;
    }

    [[nodiscard]] qreal LineWidth() const { return std::max(qreal(1), std::round(kLine * m_size)); }

    void PlacePlot()
    {
        ChartLayout& l = m_layout;
        m_labelLine = std::ceil(Metrics(l.labelFont).capHeight() + kGap * m_size);
        qreal below = l.labelRows * m_labelLine + Gap();
        if (!m_chart.labelAxis.isEmpty() && HasRoomForWords()) {
            below += LineHeight();
        }
        const auto top = [&] { return l.title.bottom() + Gap() + m_valueHeight + l.depth.height(); };
        const qreal bottom = std::floor(l.area.bottom() - below);
        constexpr qreal kLeastHeight = 3;
        if (bottom - top() < kLeastHeight * m_size) { // the bars come before their values
            l.valuePlace = ChartLayout::ValuePlace::None;
            m_valueHeight = 0;
        }
        l.plot.setTop(std::min(std::ceil(top()), bottom - 1));
        l.plot.setBottom(bottom);
    }

    [[nodiscard]] qreal HeightOf(qint64 value) const
    {
        const qreal part = qreal(std::max<qint64>(0, value)) / qreal(m_layout.scale.top);
        return std::round(part * m_layout.plot.height());
    }

    void PlaceTicks()
    {
        ChartLayout& l = m_layout;
        const qreal height = std::ceil(Metrics(l.tickFont).capHeight());
        for (qint64 value = 0; value <= l.scale.top; value += l.scale.step) {
            const qreal y = l.plot.bottom() - HeightOf(value);
            const qreal right = l.plot.left() - Gap();
            l.ticks.emplace_back(right - m_tickWidth, y - std::round(height / 2), m_tickWidth, height);
        }
    }

    void PlaceBars()
    {
        constexpr qreal kFlatPart = 0.7;
        constexpr qreal kBlockPart = 0.54;
        ChartLayout& l = m_layout;
        const qreal part = l.depth.isEmpty() ? kFlatPart : kBlockPart;
        const qreal width = std::max(qreal(1), std::round(std::min(part * l.slot, kWidestBar * m_size)));
        for (size_t i = 0; i < m_chart.bars.size(); ++i) {
            const qreal margin = (l.slot - width - l.depth.width()) / 2;
            const qreal height = HeightOf(m_chart.bars[i].value);
            l.bars.emplace_back(std::floor(l.plot.left() + qreal(i) * l.slot + margin),
                                l.plot.bottom() - height, width, height);
        }
    }

    void PlaceLabels()
    {
        ChartLayout& l = m_layout;
        const QFontMetricsF metrics = Metrics(l.labelFont);
        const qreal height = std::ceil(metrics.capHeight());
        for (size_t i = 0; i < m_chart.bars.size(); ++i) {
            const qreal width = metrics.horizontalAdvance(m_chart.bars[i].label);
            const int row = int(i) % l.labelRows;
            const qreal left = std::clamp(l.bars[i].center().x() - width / 2, l.area.left(),
                                          std::max(l.area.left(), l.area.right() - width));
            l.labels.emplace_back(left, l.plot.bottom() + Gap() + row * m_labelLine, width, height);
        }
    }

    void PlaceValues()
    {
        ChartLayout& l = m_layout;
        if (l.valuePlace == ChartLayout::ValuePlace::None) {
            return;
        }
        const QFontMetricsF metrics = Metrics(l.valueFont);
        const qreal digit = std::ceil(metrics.capHeight());
        for (size_t i = 0; i < m_chart.bars.size(); ++i) {
            const qreal length = metrics.horizontalAdvance(QString::number(m_chart.bars[i].value));
            const QSizeF size = l.valuePlace == ChartLayout::ValuePlace::Above ? QSizeF(length, digit)
                                                                               : QSizeF(digit, length);
            const qreal middle = l.bars[i].center().x() + l.depth.width() / 2;
            const qreal bottom = l.bars[i].top() - l.depth.height() - std::round(Gap() / 2);
            // Not on the axis: the first value of many narrow blocks would touch it.
            const qreal left =
                std::max(middle - size.width() / 2, l.plot.left() + std::max(1.0, std::round(m_size / 10.0)));
            l.values.emplace_back(QPointF(left, bottom - size.height()), size);
        }
    }

    void PlaceWords()
    {
        ChartLayout& l = m_layout;
        if (!HasRoomForWords()) {
            return;
        }
        const QFontMetricsF metrics = Metrics(m_font);
        const auto fits = [&](const QString& words, qreal length) {
            return !words.isEmpty() && metrics.horizontalAdvance(words) <= length;
        };
        if (fits(m_chart.labelAxis, l.plot.width())) {
            l.labelAxis = QRectF(l.plot.left(), l.area.bottom() - LineHeight(), l.plot.width(), LineHeight());
        }
        if (fits(m_chart.valueAxis, l.plot.height())) {
            l.valueAxis = QRectF(l.area.left(), l.plot.top(), LineHeight(), l.plot.height());
        }
    }

    const BarChart& m_chart;
    const QFont& m_font;
    const QPaintDevice* m_device;
    int m_size;
    qreal m_count;
    int m_highest = 0;
    qreal m_tickWidth = 0;
    qreal m_labelLine = 0;
    qreal m_valueHeight = 0;
    ChartLayout m_layout;
};

/// Paints what a layout has found a place for.
class ChartBrush
{
public:
    ChartBrush(QPainter& painter, const ChartLayout& layout, const BarChart& chart, const ChartLook& look,
               int marked)
        : m_painter(painter), m_layout(layout), m_chart(chart), m_look(look), m_marked(marked),
          m_line(std::max(qreal(1), std::round(kLine * look.font.pixelSize())))
    {}

    void PaintAll()
    {
        m_painter.fillRect(m_layout.area, m_look.ground);
        PaintGrid();
        PaintBars();
        PaintTexts();
    }

private:
    void Horizontal(qreal left, qreal right, qreal y, const QColor& color)
    {
        m_painter.fillRect(QRectF(left, y, right - left, m_line), color);
    }

    void Vertical(qreal x, qreal top, qreal bottom, const QColor& color)
    {
        m_painter.fillRect(QRectF(x, top, m_line, bottom - top), color);
    }

    void Slanted(qreal x, qreal y)
    {
        m_painter.drawLine(QPointF(x, y), QPointF(x + m_layout.depth.width(), y - m_layout.depth.height()));
    }

    /// The lines behind the bars: on the back wall when there is one.
    void PaintGrid()
    {
        const QRectF& plot = m_layout.plot;
        const QRectF wall = plot.translated(m_layout.depth.width(), -m_layout.depth.height());
        QPen pen(m_look.grid, m_line);
        if (m_look.hatched) { // no grey to be had
            pen.setDashPattern({1, 4});
        }
        m_painter.setPen(pen);
        for (const QRectF& tick : m_layout.ticks) {
            const qreal y = std::round(tick.center().y());
            const qreal back = y - m_layout.depth.height();
            if (m_look.hatched) {
                m_painter.drawLine(QPointF(wall.left(), back), QPointF(wall.right(), back));
            } else {
                Horizontal(wall.left(), wall.right(), back, m_look.grid);
            }
            Horizontal(plot.left() - std::round(2 * m_line), plot.left(), y, m_look.text);
            if (!m_layout.depth.isEmpty()) {
                Slanted(plot.left(), y);
            }
        }
        if (!m_layout.depth.isEmpty()) {
            Slanted(plot.right(), plot.bottom());
            m_painter.drawLine(wall.topLeft(), wall.bottomLeft());
        }
        for (const QRectF& value : m_layout.values) { // no line through a number
            m_painter.fillRect(value.adjusted(0, -m_line, 0, m_line), m_look.ground);
        }
        Vertical(plot.left(), plot.top(), plot.bottom(), m_look.text);
    }

    void PaintBars()
    {
        for (size_t i = 0; i < m_layout.bars.size(); ++i) {
            // From left to right: a block stands in front of the side of the one before it.
            PaintBar(m_layout.bars[i], int(i) == m_marked);
        }
        Horizontal(m_layout.plot.left(), m_layout.plot.right(), m_layout.plot.bottom(), m_look.text);
    }

    void PaintBar(const QRectF& bar, bool marked)
    {
        const QColor front = marked ? m_look.marked : m_look.front;
        if (!m_layout.depth.isEmpty()) {
            PaintBlock(bar, marked);
        }
        if (m_look.hatched) {
            m_painter.fillRect(bar, m_look.ground);
            Hatch(bar);
            Outline(QPolygonF(bar));
        } else if (bar.height() > 0) {
            m_painter.fillRect(bar, front);
        } else { // a mark on the ground, so that a 0 is seen
            Horizontal(bar.left(), bar.right(), bar.bottom() - m_line, front);
        }
    }

    /// The top and the side of a block.
    void PaintBlock(const QRectF& bar, bool marked)
    {
        const QPointF depth(m_layout.depth.width(), -m_layout.depth.height());
        const QPolygonF top{bar.topLeft(), bar.topLeft() + depth, bar.topRight() + depth, bar.topRight()};
        const QPolygonF side{bar.topRight(), bar.topRight() + depth, bar.bottomRight() + depth,
                             bar.bottomRight()};
        constexpr int kLighter = 130;
        constexpr int kDarker = 140;
        Fill(top, marked ? m_look.marked.lighter(kLighter) : m_look.top);
        Fill(side, marked ? m_look.marked.darker(kDarker) : m_look.side);
        if (m_look.hatched) {
            HatchSide(bar);
            Outline(top);
            Outline(side);
        }
    }

    void Fill(const QPolygonF& face, const QColor& color)
    {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(color);
        m_painter.drawPolygon(face);
    }

    void Outline(const QPolygonF& face)
    {
        m_painter.setPen(QPen(m_look.text, m_line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawPolygon(face);
    }

    /// Lines and not a hatch brush: a brush's lines are dots of the device, so fine on paper that they print
    /// as grey.
    void Hatch(const QRectF& bar)
    {
        constexpr qreal kCoarse = 7; // seen as lines, not as grey
        const qreal step = kCoarse * m_line;
        QList<QLineF> lines;
        for (int i = -int(bar.height() / step); i * step < bar.width(); ++i) {
            Add(lines, bar, bar.left() + bar.bottom() + i * step);
        }
        m_painter.setPen(QPen(m_look.text, m_line, Qt::SolidLine, Qt::FlatCap));
        m_painter.drawLines(lines);
    }

    /// The part within the bar of the line whose x and y have that sum.
    static void Add(QList<QLineF>& lines, const QRectF& bar, qreal sum)
    {
        const qreal left = std::max(bar.left(), sum - bar.bottom());
        const qreal right = std::min(bar.right(), sum - bar.top());
        if (right > left) {
            lines << QLineF(left, sum - left, right, sum - right);
        }
    }

    void HatchSide(const QRectF& bar)
    {
        m_painter.setPen(QPen(m_look.text, m_line, Qt::SolidLine, Qt::FlatCap));
        constexpr qreal kDense = 3; // darker than the front
        const qreal step = kDense * m_line;
        for (int i = 0; i * step < bar.height(); ++i) {
            Slanted(bar.right(), bar.bottom() - i * step);
        }
    }

    void PaintTexts()
    {
        m_painter.setPen(m_look.text);
        PaintTitle();
        for (size_t i = 0; i < m_layout.ticks.size(); ++i) {
            const QString value = QString::number(qint64(i) * m_layout.scale.step);
            Write(m_layout.ticks[i], value, m_layout.tickFont, Qt::AlignRight);
        }
        for (size_t i = 0; i < m_layout.labels.size(); ++i) {
            const QRectF& label = m_layout.labels[i];
            if (int(i) % m_layout.labelRows > 0) { // leads from the bar past the rows between
                const qreal x = std::round(m_layout.bars[i].center().x() - m_line / 2);
                Vertical(x, m_layout.plot.bottom() + m_line, label.top() - 2 * m_line, m_look.grid);
            }
            Write(label, m_chart.bars[i].label, m_layout.labelFont, Qt::AlignHCenter);
        }
        for (size_t i = 0; i < m_layout.values.size(); ++i) {
            WriteValue(m_layout.values[i], QString::number(m_chart.bars[i].value));
        }
        if (!m_layout.labelAxis.isEmpty()) {
            Write(m_layout.labelAxis, m_chart.labelAxis, m_look.font, Qt::AlignHCenter);
        }
        if (!m_layout.valueAxis.isEmpty()) {
            WriteUpright(m_layout.valueAxis, m_chart.valueAxis, m_look.font);
        }
    }

    void PaintTitle()
    {
        const qreal height = m_layout.title.height() / std::max(qreal(1), qreal(m_layout.titleLines.size()));
        QRectF line(m_layout.title.left(), m_layout.title.top(), m_layout.title.width(), height);
        for (const QString& words : m_layout.titleLines) {
            Write(line, words, m_layout.titleFont, Qt::AlignHCenter);
            line.translate(0, height);
        }
    }

    void WriteValue(const QRectF& box, const QString& value)
    {
        if (m_layout.valuePlace == ChartLayout::ValuePlace::Above) {
            Write(box, value, m_layout.valueFont, Qt::AlignHCenter);
        } else {
            WriteUpright(box, value, m_layout.valueFont);
        }
    }

    /// Writes one line whose capitals and digits stand in the middle of the box's height.
    void Write(const QRectF& box, const QString& text, const QFont& font, Qt::Alignment side)
    {
        const QFontMetricsF metrics(font, m_painter.device());
        qreal left = box.left();
        if (side != Qt::AlignLeft) {
            const qreal free = box.width() - metrics.horizontalAdvance(text);
            left += side == Qt::AlignRight ? free : free / 2;
        }
        m_painter.setFont(font);
        m_painter.drawText(QPointF(left, box.top() + (box.height() + metrics.capHeight()) / 2), text);
    }

    /// The same, read from below.
    void WriteUpright(const QRectF& box, const QString& text, const QFont& font)
    {
        m_painter.save();
        m_painter.translate(box.bottomLeft());
        m_painter.rotate(-90);
        Write(QRectF(0, 0, box.height(), box.width()), text, font, Qt::AlignHCenter);
        m_painter.restore();
    }

    QPainter& m_painter;
    const ChartLayout& m_layout;
    const BarChart& m_chart;
    const ChartLook& m_look;
    int m_marked;
    qreal m_line;
};

QColor Mixed(const QColor& one, const QColor& other, qreal part)
{
    const auto mix = [part](int a, int b) { return qRound(a + (b - a) * part); };
    return {mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue())};
}

} // namespace

ChartLook LookOnScreen(const QPalette& palette, const QFont& font)
{
    constexpr qreal kFaint = 0.2;
    const QColor ground = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    const bool dark = ground.lightness() < text.lightness();
    const QColor front = dark ? QColor(0x5C, 0xA8, 0xE8) : QColor(0x2E, 0x75, 0xB6);
    return {.font = font,
            .ground = ground,
            .text = text,
            .grid = Mixed(ground, text, kFaint),
            .front = front,
            .top = dark ? QColor(0x9C, 0xCE, 0xF6) : QColor(0x7F, 0xB2, 0xE0),
            .side = dark ? QColor(0x34, 0x74, 0xA8) : QColor(0x1C, 0x4E, 0x80),
            .marked = dark ? QColor(0xF2, 0xA0, 0x3D) : QColor(0xD9, 0x7A, 0x10)};
}

ChartLook LookOnPaper(ChartInk ink, int textSize)
{
    QPalette paper;
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    ChartLook look =
        LookOnScreen(paper, Sized(QFontDatabase::systemFont(QFontDatabase::GeneralFont), textSize));
    if (ink == ChartInk::BlackAndWhite) {
        look.hatched = true;
        look.grid = Qt::black;
        look.front = look.top = look.side = look.marked = Qt::white;
    }
    return look;
}

int ChartLayout::BarAt(QPointF point) const
{
    if (slot <= 0 || point.x() < plot.left() || point.y() < title.bottom() || point.y() > area.bottom()) {
        return -1;
    }
    const qreal column = (point.x() - plot.left()) / slot;
    return column < qreal(bars.size()) ? int(column) : -1;
}

ChartLayout LayOutChart(const BarChart& chart, const QRectF& area, const QFont& font,
                        const QPaintDevice* device)
{
    return Layouter(chart, area, font, device).LayOut();
}

void PaintChart(QPainter& painter, const ChartLayout& layout, const BarChart& chart, const ChartLook& look,
                int marked)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    ChartBrush(painter, layout, chart, look, marked).PaintAll();
    painter.restore();
}
