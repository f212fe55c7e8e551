#pragma once

#include "app/Printout.h"

#include <QFile>
#include <QString>
#include <QStringList>
#include <gtest/gtest.h>

/// A line as it stands on paper: each text at its column, blanks between.
inline QString LineText(const PrintedLine& line)
{
    QString text;
    for (const PrintedText& part : line) {
        EXPECT_GE(part.column, text.size() + 1) << "texts overlap: " << part.text.toStdString();
        text = text.leftJustified(part.column - 1) + part.text;
    }
    EXPECT_LE(text.size(), kPrintColumns) << "off the paper: " << text.toStdString();
    while (text.endsWith(u' ')) {
        text.chop(1);
    }
    return text;
}

/// The lines of one page, from 1.
inline QStringList PageLines(const PrintedDocument& document, int page)
{
    QStringList lines;
    for (const PrintedLine& line : document.pages.at(size_t(page) - 1)) {
        lines << LineText(line);
    }
    EXPECT_LE(lines.size(), kSheetLines) << "page " << page << " runs off the paper";
    return lines;
}

/// The whole document, each page ended by a line "--- page n ends ---".
inline QString PagesText(const PrintedDocument& document)
{
    QString text;
    for (int page = 1; page <= int(document.pages.size()); ++page) {
        text += PageLines(document, page).join(u'\n') + QStringLiteral("\n--- page %1 ends ---\n").arg(page);
    }
    return text;
}

#ifdef QUILLABY_GOLDEN
/// Compares a document with the golden file of that name in tests/golden (UTF-8). To take a new one after the
/// pages have been looked at, run the test with QUILLABY_TAKE_GOLDEN=1 in the environment.
inline void ExpectGolden(const PrintedDocument& document, const QString& name)
{
    const QString text = PagesText(document);
    QFile file(QStringLiteral(QUILLABY_GOLDEN "/") + name);
    if (qEnvironmentVariableIsSet("QUILLABY_TAKE_GOLDEN")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
        file.write(text.toUtf8());
        FAIL() << "a new golden file was taken: " << name.toStdString();
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "no golden file " << name.toStdString();
    EXPECT_EQ(text.toStdString(), file.readAll().toStdString());
}
#endif
