#pragma once

#include "app/Outcome.h"

#include <QString>
#include <QStringList>

#include <vector>

/// The help file's name. It is a folder of pages in the program itself, so that it can never be missing.
inline constexpr QStringView kHelpFile = u"Qbxuse36.hlp";

/// One page of the help.
struct HelpPage {
    QString name;      ///< of its file, without folder and ending
    int level = 0;     ///< 0 for a page that stands at the left edge of the contents, 1 for one below it ...
    QStringList forms; ///< the object names of the forms whose page this is
    QString title;
    QString text; ///< what the reader sees, without markup; one line to a paragraph
};

/// All pages, in the order of the contents.
struct HelpBook {
    std::vector<HelpPage> pages;

    /// Where a page stands. @return -1 for a name that no page has.
    [[nodiscard]] int IndexOf(const QString& name) const;

    /// The page of a form, by the form's object name. @return an empty name for a form without a page.
    [[nodiscard]] QString PageOfForm(const QString& form) const;
};

/// Reads contents.txt of a folder and the pages it names.
///
/// A line of the contents is the name of a page, moved two blanks to the right for each level; behind a colon
/// follow the forms whose page it is. Empty lines and those that begin with "#" do not count.
///
/// @return what is wrong: a file that cannot be read, a page that is not well-formed or has no title, a level
///         that is skipped. @p book then holds what was read before.
[[nodiscard]] Outcome ReadHelpBook(const QString& folder, HelpBook& book);

/// The title and the text of a page. Its markup has to be well-formed. @return what is wrong with it.
[[nodiscard]] Outcome ReadHelpPage(const QByteArray& html, HelpPage& page);
