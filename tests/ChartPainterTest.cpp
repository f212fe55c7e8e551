#include "app/ChartPainter.h"

#include "tests/MadeChart.h"
#include "tests/QtPrinters.h"

#include <QImage>
#include <gtest/gtest.h>

#include <cmath>
#include <set>

using namespace Qt::StringLiterals;

namespace {

using Place = ChartLayout::ValuePlace;

constexpr QSize kOpening(623, 405);

QFont Letters(int size = 12)
{
    QFont font;
    font.setPixelSize(size);
    return font;
}

QImage Canvas(QSize size = kOpening)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::magenta); // no chart has it
    return image;
}

ChartLayout LayOut(const BarChart& chart, QSize size = kOpening, int letters = 12)
{
    const QImage device = Canvas({1, 1});
    return LayOutChart(chart, QRectF(QPointF(), size), Letters(letters), &device);
}

QImage Picture(const BarChart& chart, const ChartLook& look, QSize size = kOpening, int marked = -1)
{
    QImage image = Canvas(size);
    QPainter painter(&image);
    const ChartLayout layout = LayOutChart(chart, QRectF(QPointF(), size), look.font, &image);
    PaintChart(painter, layout, chart, look, marked);
    return image;
}

void ExpectApart(const std::vector<QRectF>& boxes, const char* what)
{
    for (size_t i = 0; i < boxes.size(); ++i) {
        for (size_t k = i + 1; k < boxes.size(); ++k) {
            EXPECT_FALSE(boxes[i].intersects(boxes[k])) << what << ' ' << i << " and " << k;
        }
    }
}

void ExpectInside(const QRectF& area, const std::vector<QRectF>& boxes, const char* what)
{
    constexpr qreal kBlur = 0.5;
    const QRectF room = area.adjusted(-kBlur, -kBlur, kBlur, kBlur);
    const auto holds = [&](const QRectF& box) { // also a box without height
        return room.contains(box.topLeft()) && room.contains(box.bottomRight());
    };
    for (size_t i = 0; i < boxes.size(); ++i) {
        EXPECT_TRUE(holds(boxes[i])) << what << ' ' << i << ": " << boxes[i].left() << ", " << boxes[i].top()
                                     << " to " << boxes[i].right() << ", " << boxes[i].bottom();
    }
}

/// Everything is there, within the area and beside everything else.
void ExpectSound(const BarChart& chart, const ChartLayout& layout)
{
    ASSERT_EQ(layout.bars.size(), chart.bars.size());
    ASSERT_EQ(layout.labels.size(), chart.bars.size());
    ExpectInside(layout.area, layout.bars, "bar");
    ExpectInside(layout.area, layout.labels, "label");
    ExpectInside(layout.area, layout.values, "value");
    ExpectInside(layout.area, layout.ticks, "tick");
    ExpectInside(layout.area, {layout.title, layout.plot}, "title and plot");
    ExpectApart(layout.bars, "bars");
    ExpectApart(layout.labels, "labels");
    ExpectApart(layout.values, "values");
    ExpectApart(layout.ticks, "ticks");
    for (size_t i = 0; i < layout.values.size(); ++i) {
        EXPECT_FALSE(layout.values[i].intersects(layout.title)) << "value and title " << i;
        EXPECT_LT(layout.values[i].bottom(), layout.bars[i].top()) << "a value stands above its bar";
        EXPECT_GT(layout.values[i].left(), layout.plot.left()) << "no value touches the axis";
    }
    for (size_t i = 0; i < layout.labels.size(); ++i) {
        EXPECT_GT(layout.labels[i].top(), layout.plot.bottom());
        EXPECT_FALSE(layout.labels[i].intersects(layout.labelAxis));
    }
    for (const QRectF& tick : layout.ticks) {
        EXPECT_LE(tick.right(), layout.plot.left());
        EXPECT_FALSE(tick.intersects(layout.valueAxis));
    }
}

/// How much brighter one colour is than the other, as readability is measured: 1 to 21.
double Contrast(const QColor& one, const QColor& other)
{
    const auto light = [](const QColor& color) {
        const auto part = [](double c) {
            return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
    };
    const double bright = std::max(light(one), light(other));
    const double dark = std::min(light(one), light(other));
    return (bright + 0.05) / (dark + 0.05);
}

QPalette DarkPalette()
{
    QPalette palette(QColor(0x4A, 0x4D, 0x52), QColor(0x35, 0x37, 0x3B));
    palette.setColor(QPalette::Base, QColor(0x26, 0x28, 0x2B));
    palette.setColor(QPalette::Text, Qt::white);
    return palette;
}

} // namespace

TEST(ChartLayout, NothingIsCutOffAndNothingCoversAnother)
{
    for (const BarStyle style : {BarStyle::Flat, BarStyle::ThreeDimensional}) {
        for (const int bars : {1, 2, 5, 10, 20, 36, 45, 49, 59, 60}) {
            for (const int highest : {0, 1, 9, 52, 175, 2001}) {
                for (const QSize size : {kOpening, QSize(1260, 740), QSize(420, 320), QSize(2000, 300)}) {
                    SCOPED_TRACE(testing::Message()
                                 << bars << " bars to " << highest << ", " << size.width() << " x "
                                 << size.height() << (style == BarStyle::Flat ? "" : ", three dimensions"));
                    const BarChart chart = MadeChart(bars, highest, style);
                    ExpectSound(chart, LayOut(chart, size));
                }
            }
        }
    }
}

TEST(ChartLayout, ThreeChartsOfTenBarsFitSideBySideInTheOpeningWindow)
{
    for (const int highest : {0, 9, 52, 2001}) {
        BarChart chart = MadeChart(10, highest, BarStyle::ThreeDimensional);
        chart.title = u"Due"_s;
        for (ChartBar& bar : chart.bars) {
            bar.label = QString::number(bar.label.toInt() + 50);
        }
        const ChartLayout layout = LayOut(chart, {190, 150});
        ExpectSound(chart, layout);
        EXPECT_EQ(layout.values.size(), 10U) << highest;
        EXPECT_GE(layout.labelFont.pixelSize(), 9);
        EXPECT_GE(layout.valueFont.pixelSize(), 8);
        EXPECT_GT(layout.plot.height(), 40);
    }
}

TEST(ChartLayout, SixtyBarsHaveEveryNumberAndEveryValueAtTheOpeningSize)
{
    const ChartLayout layout = LayOut(MadeChart(60, 2001, BarStyle::ThreeDimensional));
    EXPECT_EQ(layout.labelRows, 2) << "the numbers take turns";
    EXPECT_GE(layout.labelFont.pixelSize(), 9);
    EXPECT_EQ(layout.valuePlace, Place::Upright);
    EXPECT_GE(layout.valueFont.pixelSize(), 9);
    EXPECT_EQ(layout.values.size(), 60U);
}

TEST(ChartLayout, FewBarsHaveTheirValuesUprightOnlyWhenTheyMust)
{
    EXPECT_EQ(LayOut(MadeChart(10, 2001)).valuePlace, Place::Above);
    EXPECT_EQ(LayOut(MadeChart(10, 2001)).labelRows, 1);
    EXPECT_EQ(LayOut(MadeChart(60, 2001), {2600, 500}).valuePlace, Place::Above);
}

TEST(ChartLayout, WithoutRoomForValuesTheBarsComeFirst)
{
    const BarChart chart = MadeChart(60, 2001);
    const ChartLayout narrow = LayOut(chart, {300, 300});
    EXPECT_EQ(narrow.valuePlace, Place::None);
    EXPECT_TRUE(narrow.values.empty());
    EXPECT_EQ(narrow.bars.size(), 60U);
    const ChartLayout low = LayOut(chart, {623, 110});
    EXPECT_EQ(low.valuePlace, Place::None);
    EXPECT_GT(low.plot.height(), 12);
}

TEST(ChartLayout, AnAreaWithoutRoomIsNoFault)
{
    for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(5, 400), QSize(400, 5), QSize(60, 40)}) {
        for (const BarStyle style : {BarStyle::Flat, BarStyle::ThreeDimensional}) {
            const BarChart chart = MadeChart(60, 100, style);
            EXPECT_EQ(LayOut(chart, size).bars.size(), 60U);
            if (!size.isEmpty()) {
                EXPECT_FALSE(Picture(chart, LookOnPaper(ChartInk::BlackAndWhite, 12), size).isNull());
            }
        }
    }
}

TEST(ChartLayout, HeightsAreInProportionToTheValues)
{
    BarChart chart = MadeChart(4, 100);
    chart.bars = {{u"1"_s, 100}, {u"2"_s, 50}, {u"3"_s, 0}, {u"4"_s, -7}};
    const ChartLayout layout = LayOut(chart);
    EXPECT_EQ(layout.scale.top, 100);
    EXPECT_EQ(layout.bars[0].height(), layout.plot.height());
    EXPECT_NEAR(layout.bars[1].height(), layout.plot.height() / 2, 1);
    EXPECT_EQ(layout.bars[2].height(), 0);
    EXPECT_EQ(layout.bars[3].height(), 0) << "no bar hangs below the axis";
    for (const QRectF& bar : layout.bars) {
        EXPECT_EQ(bar.bottom(), layout.plot.bottom());
        EXPECT_EQ(bar.width(), layout.bars[0].width());
    }
}

TEST(ChartLayout, BarsStandAtEqualDistances)
{
    for (const BarStyle style : {BarStyle::Flat, BarStyle::ThreeDimensional}) {
        const ChartLayout layout = LayOut(MadeChart(49, 175, style));
        for (size_t i = 1; i < layout.bars.size(); ++i) {
            EXPECT_EQ(layout.bars[i].left() - layout.bars[i - 1].left(), layout.slot);
        }
    }
}

TEST(ChartLayout, TheValuesAtTheAxisStandBesideTheirHeights)
{
    const ChartLayout layout = LayOut(MadeChart(10, 175));
    EXPECT_EQ(layout.ticks.size(), size_t(layout.scale.top / layout.scale.step) + 1);
    EXPECT_NEAR(layout.ticks.front().center().y(), layout.plot.bottom(), 1);
    EXPECT_NEAR(layout.ticks.back().center().y(), layout.plot.top(), 1);
}

TEST(ChartLayout, ALongTitleTakesTwoLinesAndEndsInDots)
{
    BarChart chart = MadeChart(49, 175);
    EXPECT_EQ(LayOut(chart).titleLines, QStringList{chart.title});
    chart.title = u"No. draws since drawn/not drawn in 2001 draws. "_s +
                  u"State Lottery of the Midwest, its Lakes and Islands "_s;
    const QStringList two = LayOut(chart).titleLines;
    ASSERT_EQ(two.size(), 2);
    EXPECT_EQ(two.join(u' ').trimmed(), chart.title.trimmed());
    chart.title = QString(u"word "_s).repeated(1'000'000);
    const ChartLayout layout = LayOut(chart);
    ASSERT_EQ(layout.titleLines.size(), 2);
    EXPECT_TRUE(layout.titleLines.last().endsWith(u'…')) << layout.titleLines.last().toStdString();
    chart.title = QString(300, u'W');
    EXPECT_EQ(LayOut(chart).titleLines.size(), 2) << "a word without end is broken, too";
    chart.title = u"a\tb\nc\x0001"_s;
    EXPECT_EQ(LayOut(chart).titleLines.value(0).trimmed(), u"a b c"_s) << "no boxes for control characters";
}

TEST(ChartLayout, WordsAtTheAxesGiveWayInASmallChart)
{
    const ChartLayout large = LayOut(MadeChart(10, 9));
    EXPECT_FALSE(large.labelAxis.isEmpty());
    EXPECT_FALSE(large.valueAxis.isEmpty());
    const ChartLayout small = LayOut(MadeChart(10, 9), {190, 130});
    EXPECT_TRUE(small.labelAxis.isEmpty());
    EXPECT_TRUE(small.valueAxis.isEmpty());
}

TEST(ChartLayout, FindsTheBarInWhoseColumnAPointIs)
{
    const BarChart chart = MadeChart(49, 175);
    const ChartLayout layout = LayOut(chart);
    for (size_t i = 0; i < layout.bars.size(); ++i) {
        const qreal x = layout.bars[i].center().x();
        EXPECT_EQ(layout.BarAt({x, layout.plot.bottom() - 1}), int(i));
        EXPECT_EQ(layout.BarAt({x, layout.plot.top()}), int(i)) << "also above a low bar";
        EXPECT_EQ(layout.BarAt({x, layout.labels[i].center().y()}), int(i)) << "and on its number";
    }
    EXPECT_EQ(layout.BarAt({layout.plot.left() - 2, 200}), -1);
    EXPECT_EQ(layout.BarAt({layout.plot.right() + 2, 200}), -1);
    EXPECT_EQ(layout.BarAt(layout.title.center()), -1);
    EXPECT_EQ(layout.BarAt({300, layout.area.bottom() + 1}), -1);
    EXPECT_EQ(LayOut({}).BarAt({300, 200}), -1);
}

TEST(ChartPainter, FillsTheAreaWithTheGroundAndPaintsNothingOutside)
{
    const BarChart chart = MadeChart(60, 2001, BarStyle::ThreeDimensional);
    const ChartLook look = LookOnScreen(QPalette(), Letters());
    QImage image = Canvas({700, 500});
    QPainter painter(&image);
    const QRect area(50, 40, 600, 400);
    PaintChart(painter, LayOutChart(chart, area, look.font, &image), chart, look);
    painter.end();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (area.contains(x, y)) {
                ASSERT_NE(image.pixelColor(x, y), QColor(Qt::magenta)) << x << ", " << y;
            } else {
                ASSERT_EQ(image.pixelColor(x, y), QColor(Qt::magenta)) << x << ", " << y;
            }
        }
    }
}

TEST(ChartPainter, AFlatBarIsFilledToItsHeight)
{
    BarChart chart = MadeChart(3, 100);
    chart.bars = {{u"1"_s, 100}, {u"2"_s, 50}, {u"3"_s, 0}};
    const ChartLook look = LookOnScreen(QPalette(), Letters());
    const QImage image = Picture(chart, look);
    const ChartLayout layout = LayOut(chart);
    const QRect half = layout.bars[1].toRect();
    EXPECT_EQ(image.pixelColor(half.center()), look.front);
    EXPECT_EQ(image.pixelColor(half.center().x(), half.top() + 1), look.front);
    EXPECT_NE(image.pixelColor(half.center().x(), half.top() - 2), look.front);
    EXPECT_NE(image.pixelColor(half.left() - 2, half.center().y()), look.front);
    const QRect none = layout.bars[2].toRect();
    EXPECT_EQ(image.pixelColor(none.center().x(), none.bottom()), look.front) << "a 0 is seen on the ground";
}

TEST(ChartPainter, ABlockShowsItsTopAndItsSide)
{
    const BarChart chart = MadeChart(5, 100, BarStyle::ThreeDimensional);
    const ChartLook look = LookOnScreen(QPalette(), Letters());
    const QImage image = Picture(chart, look);
    const ChartLayout layout = LayOut(chart);
    const QRectF bar = layout.bars.back();
    const QPointF inTop(bar.center().x() + layout.depth.width() / 2, bar.top() - layout.depth.height() / 2);
    const QPointF inSide(bar.right() + layout.depth.width() / 2, bar.center().y());
    EXPECT_EQ(image.pixelColor(bar.center().toPoint()), look.front);
    EXPECT_EQ(image.pixelColor(inTop.toPoint()), look.top);
    EXPECT_EQ(image.pixelColor(inSide.toPoint()), look.side);
}

TEST(ChartPainter, TheMarkedBarIsSetOff)
{
    const BarChart chart = MadeChart(10, 9);
    const ChartLook look = LookOnScreen(QPalette(), Letters());
    const QImage image = Picture(chart, look, kOpening, 9);
    EXPECT_EQ(image.pixelColor(LayOut(chart).bars[9].center().toPoint()), look.marked);
    EXPECT_EQ(image.pixelColor(LayOut(chart).bars[1].center().toPoint()), look.front);
}

TEST(ChartPainter, EveryPaletteLetsBarsAndWordsStandOutFromTheGround)
{
    for (const QPalette& palette : {QPalette(), DarkPalette()}) {
        const ChartLook look = LookOnScreen(palette, Letters());
        EXPECT_EQ(look.ground, palette.color(QPalette::Base));
        EXPECT_GE(Contrast(look.text, look.ground), 7);
        EXPECT_GE(Contrast(look.front, look.ground), 3);
        EXPECT_GE(Contrast(look.marked, look.ground), 3);
        EXPECT_GE(Contrast(look.front, look.side), 1.5) << "the faces of a block are told apart";
        EXPECT_GE(Contrast(look.front, look.top), 1.5);
    }
}

TEST(ChartPainter, PaperIsWhiteWhateverTheDesktop)
{
    for (const ChartInk ink : {ChartInk::Color, ChartInk::BlackAndWhite}) {
        EXPECT_EQ(LookOnPaper(ink, 95).ground, QColor(Qt::white));
        EXPECT_EQ(LookOnPaper(ink, 95).text, QColor(Qt::black));
    }
}

TEST(ChartPainter, InBlackAndWhiteNothingIsColoredOrFilledWithGrey)
{
    for (const BarStyle style : {BarStyle::Flat, BarStyle::ThreeDimensional}) {
        const BarChart chart = MadeChart(10, 52, style);
        // 600 dots to the inch, where every line is several dots wide.
        const QImage image = Picture(chart, LookOnPaper(ChartInk::BlackAndWhite, 80), {6000, 4000});
        qint64 between = 0;
        qint64 black = 0;
        for (int y = 0; y < image.height(); ++y) {
            const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
            for (int x = 0; x < image.width(); ++x) {
                ASSERT_EQ(qRed(line[x]), qGreen(line[x]));
                ASSERT_EQ(qRed(line[x]), qBlue(line[x]));
                black += qRed(line[x]) == 0 ? 1 : 0;
                between += qRed(line[x]) > 0 && qRed(line[x]) < 255 ? 1 : 0;
            }
        }
        EXPECT_GT(black, 100'000);
        const qint64 dots = qint64(image.width()) * image.height();
        EXPECT_LT(between, dots / 12) << "only the edges of slanted lines and letters are smoothed";
    }
}

TEST(ChartPainter, TheHatchOfABarIsOfLinesApartEnoughToBeSeen)
{
    const BarChart chart = MadeChart(10, 52);
    const QImage image = Picture(chart, LookOnPaper(ChartInk::BlackAndWhite, 80), {6000, 4000});
    const ChartLayout layout = LayOut(chart, {6000, 4000}, 80);
    const QRect bar = layout.bars.back().toRect();
    int lines = 0;
    int dark = 0;
    for (int y = bar.top() + 20; y < bar.bottom() - 20; ++y) {
        const bool here = qGray(image.pixel(bar.center().x(), y)) < 128;
        const bool above = qGray(image.pixel(bar.center().x(), y - 1)) < 128;
        lines += here && !above ? 1 : 0;
        dark += here ? 1 : 0;
    }
    ASSERT_GT(lines, 10);
    const double apart = double(bar.height() - 40) / lines; // 600 dots to the inch
    EXPECT_GT(apart, 30) << "more than a millimetre";
    EXPECT_LT(apart, 90);
    EXPECT_LT(dark, (bar.height() - 40) / 3) << "more paper than ink";
}

TEST(ChartPainter, AChartWithoutBarsShowsItsTitleAndAxes)
{
    BarChart chart = MadeChart(0, 0);
    EXPECT_TRUE(LayOut(chart).bars.empty());
    const QImage image = Picture(chart, LookOnPaper(ChartInk::Color, 12));
    std::set<QRgb> colors;
    for (int x = 0; x < image.width(); ++x) {
        colors.insert(image.pixel(x, 10));
    }
    EXPECT_TRUE(colors.contains(QColor(Qt::black).rgb()));
}
