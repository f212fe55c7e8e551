#include "tests/EveryForm.h"

#include <QGroupBox>
#include <QLineEdit>

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
    } else if (qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
               qobject_cast<const QLineEdit*>(&widget) != nullptr ||
               qobject_cast<const QGroupBox*>(&widget) != nullptr) {
        needed = widget.minimumSizeHint();
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
            faults << widget->objectName() + u" stands out of "_s + parent->objectName();
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

} // namespace
