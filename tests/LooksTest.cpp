#include "tests/EveryForm.h"

#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

/// What a text needs and does not have; "" when all of it shows.
QString Clipped(const QWidget& widget)
{
    QSize needed;
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (label->text().isEmpty() || !label->toolTip().isEmpty()) {
            return {}; // what has no end is read in its tip
        }
        needed = label->sizeHint();
        if (label->wordWrap()) {
            needed = {label->minimumSizeHint().width(), label->heightForWidth(label->width())};
        }
    } else if (const auto* push = qobject_cast<const QPushButton*>(&widget)) {
        constexpr int kFrame = 4; // the style's padding may shrink, the text may not
        needed = push->fontMetrics().size(Qt::TextShowMnemonic, push->text()) + QSize(kFrame, kFrame);
    } else if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) {
        constexpr int kFrame = 6;
        needed = QSize(box->fontMetrics().horizontalAdvance(box->text()), box->fontMetrics().height()) +
                 QSize(kFrame, kFrame / 2);
    } else if (qobject_cast<const QAbstractButton*>(&widget) != nullptr) {
        needed = widget.minimumSizeHint(); // with its mark
    }
    if (needed.width() <= widget.width() && needed.height() <= widget.height()) {
        return {};
    }
    return u"%1 needs %2 x %3 and has %4 x %5"_s.arg(widget.objectName())
        .arg(needed.width())
        .arg(needed.height())
        .arg(widget.width())
        .arg(widget.height());
}

/// Everything of a form that does not fit, one a line.
QString WhatDoesNotFit(const QWidget& form)
{
    QStringList faults;
    const QList<QWidget*> widgets = form.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (!widget->isVisible() || widget->isWindow() || widget->objectName().startsWith(u"qt_"_s)) {
            continue;
        }
        if (const QString clipped = Clipped(*widget); !clipped.isEmpty()) {
            faults << clipped;
        }
        const QWidget* parent = widget->parentWidget();
        const bool scrolls = parent->objectName() == u"qt_scrollarea_viewport"_s;
        if (!scrolls && !parent->rect().contains(widget->geometry())) {
            const QRect place = widget->geometry();
            faults << u"%1 stands out of %2: %3,%4 %5 x %6 in %7 x %8"_s
                          .arg(widget->objectName(), parent->objectName())
                          .arg(place.x())
                          .arg(place.y())
                          .arg(place.width())
                          .arg(place.height())
                          .arg(parent->width())
                          .arg(parent->height());
        }
    }
    return faults.join(u'\n');
}

TEST(Looks, NothingIsClippedFromNineToSixteenPoints)
{
    const QFont before = QApplication::font();
    for (const int points : {9, 10, 11, 12, 13, 14, 15, 16}) {
        QFont letters = before;
        letters.setPointSize(points);
        QApplication::setFont(letters);
        EveryForm forms;
        forms.Visit([&](QWidget& form, const QString& name) {
            EXPECT_EQ(WhatDoesNotFit(form), QString())
                << name.toStdString() << " at " << points << " points, " << form.width() << " x "
                << form.height();
        });
    }
    QApplication::setFont(before);
}

TEST(Looks, TheWindowOfEveryFormFitsAScreenOf1280By800UpToTwelvePoints)
{
    const QFont before = QApplication::font();
    for (const int points : {9, 10, 11, 12}) {
        QFont letters = before;
        letters.setPointSize(points);
        QApplication::setFont(letters);
        EveryForm forms;
        forms.Visit([&](QWidget& form, const QString& name) {
            EXPECT_LE(form.window()->minimumSize().width(), 1280) << name.toStdString() << ' ' << points;
            EXPECT_LE(form.window()->minimumSize().height(), 800) << name.toStdString() << ' ' << points;
        });
    }
    QApplication::setFont(before);
}

TEST(Looks, AWindowThatWasLargeBecomesAsSmallAsItWas)
{
    EveryForm forms;
    QSize least;
    forms.Visit([&](QWidget& form, const QString& name) {
        if (form.window()->objectName() != u"MDIContainer"_s) {
            return;
        }
        const QSize now = form.window()->minimumSize();
        if (form.window()->width() == 1280) { // it has just been made large: nothing new is needed for that
            EXPECT_EQ(now, least) << name.toStdString();
        }
        least = now;
    });
    EXPECT_TRUE(least.isValid());
}

} // namespace
