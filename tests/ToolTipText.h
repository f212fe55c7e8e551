#pragma once

#include <QString>
#include <QTextDocument>
#include <gtest/gtest.h>

/// What a tool tip shows: the toolkit guesses whether it is markup.
inline QString TextOfToolTip(const QString& tip)
{
    if (!Qt::mightBeRichText(tip)) {
        return tip;
    }
    QTextDocument document;
    document.setHtml(tip);
    return document.toPlainText();
}
