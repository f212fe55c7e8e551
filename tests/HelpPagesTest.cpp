#include "app/AMsgbox.h"
#include "app/AllYesNo.h"
#include "app/MessageTable.h"
#include "app/PrintPreview.h"
#include "app/RecoveryOffer.h"
#include "database/InRecNum.h"
#include "help/HelpBrowser.h"
#include "invest/InInvNum.h"
#include "tests/FormBench.h"
#include "tests/TestFiles.h"

#include <QDirIterator>
#include <QGroupBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

const QString kPages = QStringLiteral(QUILLABY_SOURCE "/help/pages/");
const QStringList kFolders{u"app"_s, u"database"_s, u"picks"_s, u"hotcold"_s, u"invest"_s, u"help"_s};

/// A caption as a reader sees it: without the mark of its access key, and any run of blanks as one.
QString Seen(QString caption)
{
    return caption.remove(u'&').simplified();
}

struct Element {
    QString page;
    QString name;
    QXmlStreamAttributes attributes;
    QString text;
};

/// All elements of that name, of all pages, with the text in them.
QList<Element> ElementsNamed(const HelpBook& book, const QString& name)
{
    QList<Element> elements;
    for (const HelpPage& page : book.pages) {
        QXmlStreamReader reader(BytesOf(kPages + page.name + u".html"_s));
        while (!reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == name) {
                const QXmlStreamAttributes attributes = reader.attributes();
                elements.append({page.name, name, attributes,
                                 reader.readElementText(QXmlStreamReader::IncludeChildElements)});
            }
        }
    }
    return elements;
}

/// The names of the forms: what stands at the top of their .ui files.
QStringList FormsWithALayout()
{
    QStringList forms;
    for (const QString& folder : kFolders) {
        QDirIterator files(QStringLiteral(QUILLABY_SOURCE "/") + folder, {u"*.ui"_s});
        while (files.hasNext()) {
            QXmlStreamReader reader(BytesOf(files.next()));
            while (reader.readNextStartElement() && reader.name() != u"widget") {
                if (reader.name() == u"class") {
                    reader.skipCurrentElement();
                }
            }
            forms << reader.attributes().value(u"name"_s).toString();
        }
    }
    return forms;
}

class HelpPages : public FormBench
{
protected:
    HelpPages()
    {
        Start();
        FillDatabase(30);
        m_help->OpenContents();
    }

    [[nodiscard]] const HelpBook& Book() const { return m_help->Window()->Book(); }

    /// Takes down what stands on the buttons, labels and frames.
    void Collect(const QWidget& form)
    {
        for (const auto* button : form.findChildren<QAbstractButton*>()) {
            m_buttons.insert(Seen(button->text()));
        }
        for (const auto* label : form.findChildren<QLabel*>()) {
            m_labels.insert(Seen(label->text()));
        }
        for (const auto* frame : form.findChildren<QGroupBox*>()) {
            m_labels.insert(Seen(frame->title()));
        }
    }

    void CollectForm(FormName name, const QStringList& toggles)
    {
        m_window.ShowForm(name);
        Collect(m_window);
        for (const QString& toggle : toggles) {
            Find<QAbstractButton>(toggle).click();
        }
        Collect(m_window);
    }

    void CollectAll()
    {
        CollectForm(FormName::LotoMenu, {});
        CollectForm(FormName::LDbase, {u"DHelp"_s});
        CollectForm(FormName::Lottery, {u"PWhichCnt"_s});
        CollectForm(FormName::LCheckWin, {});
        CollectForm(FormName::LGraph, {u"ChngView"_s, u"GWhichCnt"_s, u"TwoDBut"_s});
        CollectForm(FormName::LInvTrack, {});
        CollectForm(FormName::LHotCold, {});
        Collect(AMsgbox(m_shared, u"text"_s, &m_window));
        Collect(AllYesNo(m_shared, &m_window));
        Collect(PrintPreview(PrintedDocument{.name = u"Help"_s, .pages = {{}}, .charts = {}},
                             QPageSize(QPageSize::A4), &m_window));
        Collect(InRecNum(m_shared, &m_window));
        Collect(InInvNum(m_shared, 1, &m_window));
        Collect(ChangeFnt(m_shared, m_prompts, m_window, &m_window));
        Collect(Extract(m_shared, m_prompts, m_window, &m_window));
        Collect(*m_help->Window());
        Collect(RecoveryOffer());
    }

    QSet<QString> m_buttons;
    QSet<QString> m_labels;
};

} // namespace

TEST_F(HelpPages, EveryFileIsCompiledInAndStandsInTheContents)
{
    QStringList names{u"contents.txt"_s};
    for (const HelpPage& page : Book().pages) {
        names << page.name + u".html"_s;
    }
    names.sort();
    EXPECT_EQ(NamesIn(kPages), names);
    EXPECT_EQ(QDir(HelpBrowser::Folder()).entryList(QDir::Files, QDir::Name), names);
    EXPECT_EQ(HelpBrowser::Folder(), u":/Qbxuse36.hlp"_s);
    EXPECT_EQ(names.removeDuplicates(), 0) << "a page stands twice in the contents";
}

TEST_F(HelpPages, EveryFormAndDialogHasAPage)
{
    const QStringList forms = FormsWithALayout();
    EXPECT_GE(forms.size(), 15);
    for (const QString& form : forms + QStringList{u"MDIContainer"_s, u"CMDialog1"_s}) {
        EXPECT_FALSE(Book().PageOfForm(form).isEmpty()) << form.toStdString();
    }
}

TEST_F(HelpPages, TheContentsNameOnlyFormsThatExistAndNoneTwice)
{
    QStringList named;
    for (const HelpPage& page : Book().pages) {
        named << page.forms;
    }
    const QStringList forms = FormsWithALayout() + QStringList{u"MDIContainer"_s, u"CMDialog1"_s};
    for (const QString& name : named) {
        EXPECT_TRUE(forms.contains(name)) << name.toStdString();
    }
    EXPECT_EQ(named.removeDuplicates(), 0);
}

TEST_F(HelpPages, EveryLinkLeadsToAPageOfTheHelp)
{
    const QList<Element> links = ElementsNamed(Book(), u"a"_s);
    EXPECT_GT(links.size(), 40);
    QSet<QString> reached{Book().pages.front().name};
    for (const Element& link : links) {
        const QString target = link.attributes.value(u"href"_s).toString();
        EXPECT_TRUE(target.endsWith(u".html"_s) && Book().IndexOf(target.chopped(5)) >= 0)
            << link.page.toStdString() << ": " << target.toStdString();
        EXPECT_FALSE(link.text.trimmed().isEmpty())
            << link.page.toStdString() << ": " << target.toStdString();
        reached.insert(target.chopped(5));
    }
    for (const HelpPage& page : Book().pages) {
        EXPECT_TRUE(reached.contains(page.name)) << "no link leads to " << page.name.toStdString();
    }
}

TEST_F(HelpPages, EveryPictureIsThereAndHasWordsForThoseWhoDoNotSeeIt)
{
    for (const Element& picture : ElementsNamed(Book(), u"img"_s)) {
        const QString file = picture.attributes.value(u"src"_s).toString();
        EXPECT_TRUE(QFile::exists(HelpBrowser::Folder() + u'/' + file)) << file.toStdString();
        EXPECT_TRUE(picture.attributes.hasAttribute(u"alt"_s)) << file.toStdString();
    }
}

TEST_F(HelpPages, APageBeginsWithItsTitleAndHoldsNothingThatRunsOrIsFetched)
{
    for (const HelpPage& page : Book().pages) {
        const QString html = QString::fromUtf8(BytesOf(kPages + page.name + u".html"_s));
        EXPECT_TRUE(html.contains(u"<h1>"_s + page.title.toHtmlEscaped() + u"</h1>"_s))
            << page.name.toStdString();
        for (const QString& banned : {u"<script"_s, u"http:"_s, u"https:"_s, u"onclick"_s, u"<iframe"_s}) {
            EXPECT_FALSE(html.contains(banned, Qt::CaseInsensitive)) << page.name.toStdString();
        }
    }
}

TEST_F(HelpPages, ButtonsAreCalledWhatStandsOnThem)
{
    CollectAll();
    const QList<Element> captions = ElementsNamed(Book(), u"b"_s);
    EXPECT_GT(captions.size(), 150);
    for (const Element& caption : captions) {
        EXPECT_TRUE(m_buttons.contains(caption.text.simplified()))
            << caption.page.toStdString() << ": " << caption.text.simplified().toStdString();
    }
}

TEST_F(HelpPages, LabelsAndFramesAreCalledWhatStandsThere)
{
    CollectAll();
    const QList<Element> captions = ElementsNamed(Book(), u"i"_s);
    EXPECT_GT(captions.size(), 30);
    for (const Element& caption : captions) {
        EXPECT_TRUE(m_labels.contains(caption.text.simplified()))
            << caption.page.toStdString() << ": " << caption.text.simplified().toStdString();
    }
}

TEST_F(HelpPages, EveryMessageThatTheProgramShowsIsExplainedInItsOwnWords)
{
    const QSet<int> neverShown{3, 8, 10, 21, 22, 32, 35, 52}; // kept in the table, and no form shows them
    const QString any = u"..."_s;
    constexpr qint16 kCount = 77;
    MessageArguments arguments;
    arguments.arg1 = any;
    arguments.arg2 = any;
    arguments.today = any;
    arguments.recordCount = kCount;
    arguments.picks = kCount;
    QSet<QString> texts;
    for (int number = 1; number <= 52; ++number) {
        const QString text = MessageText(number, arguments).replace(u"77"_s, any).simplified();
        if (!text.isEmpty() && !neverShown.contains(number)) {
            texts.insert(text);
        }
    }
    QSet<QString> explained;
    for (const Element& cell : ElementsNamed(Book(), u"td"_s)) {
        if (cell.attributes.value(u"class"_s) == u"message") {
            explained.insert(cell.text.simplified());
        }
    }
    for (const QString& text : texts - explained) {
        ADD_FAILURE() << "not explained: " << text.toStdString();
    }
    for (const QString& text : explained - texts) {
        ADD_FAILURE() << "not a message: " << text.toStdString();
    }
}
