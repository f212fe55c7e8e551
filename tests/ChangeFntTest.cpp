#include "tests/FormBench.h"

#include <QFile>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// Drives the settings form while it is open over the menu.
class Settings : public FormBench
{
protected:
    void SetUp() override { Start(); }

    /// Opens the form by its button and runs @p act in it; the form must be closed by then.
    void InForm(const std::function<void()>& act)
    {
        bool ran = false;
        QTimer::singleShot(0, &m_window, [&] {
            m_form = qobject_cast<ChangeFnt*>(QApplication::activeModalWidget());
            ASSERT_NE(m_form, nullptr);
            ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == m_form; }));
            act();
            ran = true;
            if (m_form != nullptr && m_form->isVisible()) {
                ADD_FAILURE() << "the form is still open";
                m_form->done(0);
            }
        });
        Click(u"PtrFnt"_s);
        EXPECT_TRUE(ran);
        m_form = nullptr;
    }

    InputBox& FormBox(const QString& name) { return *m_form->findChild<InputBox*>(name); }
    QRadioButton& Font(int index) { return *m_form->findChild<QRadioButton*>(u"PtrFt%1"_s.arg(index)); }
    void Leave() { QTest::mouseClick(m_form->findChild<QPushButton*>(u"ExitFonts"_s), Qt::LeftButton); }
    void Type(const QString& box, const QString& text)
    {
        FormBox(box).setFocus(Qt::TabFocusReason);
        for (const QChar ch : text) {
            QTest::sendKeyEvent(QTest::Click, &FormBox(box), Qt::Key_unknown, QString(ch), Qt::NoModifier);
        }
    }
    QString FocusName() const { return m_form->focusWidget()->objectName(); }
    QByteArray File() const
    {
        QFile file(m_folder.filePath(u"Personal.Lot"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    ChangeFnt* m_form = nullptr;
};

TEST_F(Settings, OpensWithItsCaptionsAndTheSettings)
{
    m_shared.settings = {.printerFont = 1,
                         .defaultPicks = 5,
                         .defaultHighest = 36,
                         .entryForms = 3,
                         .currencySymbol = u"EUR"_s,
                         .userName = u"Zoë"_s};
    InForm([this] {
        EXPECT_EQ(m_form->windowTitle(), u"Personalize"_s);
        EXPECT_EQ(m_window.windowTitle(), u" Personalize"_s);
        EXPECT_EQ(FormBox(u"InNumChoices"_s).text(), u" 5"_s);
        EXPECT_EQ(FormBox(u"InHiNum"_s).text(), u"36"_s);
        EXPECT_EQ(FormBox(u"InNumLines"_s).text(), u" 3"_s);
        EXPECT_EQ(FormBox(u"InSy"_s).text(), u"EUR"_s);
        EXPECT_EQ(FormBox(u"InMyName"_s).text(), u"Zoë"_s);
        EXPECT_TRUE(Font(1).isChecked());
        EXPECT_FALSE(Font(0).isChecked());
        EXPECT_EQ(Font(1).text(), u"Courier New 11 point font"_s);
        EXPECT_EQ(Font(0).text(), u"Standard printer font"_s);
        EXPECT_EQ(m_form->findChild<QGroupBox*>(u"Frame1"_s)->title(), u"Change Printer Font"_s);
        EXPECT_EQ(m_form->findChild<QPushButton*>(u"ExitFonts"_s)->text(), u"E&xit to Menu"_s);
        const QList<QPair<QString, QString>> labels{
            {u"InNumChoicesLabel"_s, u"Total number of picks allowed in lottery"_s},
            {u"InHiNumLabel"_s, u"Numbers in the lottery range from 1 to"_s},
            {u"InNumLinesLabel"_s, u"Number of entry forms being played"_s},
            {u"InSyLabel"_s, u"Currency symbol to use"_s},
            {u"InMyNameLabel"_s, u"Type in your name"_s},
            {u"Label5"_s,
             u"Changes are saved to disk and remain in effect at       startup of the program."_s},
        };
        for (const auto& [name, text] : labels) {
            EXPECT_EQ(m_form->findChild<QLabel*>(name)->text(), text);
        }
        Leave();
    });
    EXPECT_EQ(m_window.windowTitle(), u" Quillaby Menu"_s);
    EXPECT_EQ(m_window.ActiveForm()->objectName(), u"LotoMenu"_s);
}

TEST_F(Settings, AreWrittenAsOneLineWhenTheFormIsLeft)
{
    InForm([this] {
        EXPECT_EQ(File(), "no file");
        Type(u"InNumChoices"_s, u"5"_s);
        Type(u"InHiNum"_s, u"36"_s);
        Type(u"InNumLines"_s, u"10"_s);
        Type(u"InSy"_s, u"£"_s);
        Type(u"InMyName"_s, u"Zoë, of 6/49"_s);
        QTest::mouseClick(&Font(1), Qt::LeftButton, {}, QPoint(8, Font(1).height() / 2));
        EXPECT_EQ(m_shared.settings.printerFont, 1);
        Leave();
    });
    EXPECT_EQ(File(), "1,5,36,10,\"\xA3\",\"Zo\xEB, of 6/49\"\r\n");
    EXPECT_EQ(TextOf(u"MyName"_s), u"Zoë, of 6/49"_s);
    EXPECT_TRUE(Find<QLabel>(u"MyName"_s).isVisible());
    AppSettings read;
    EXPECT_TRUE(ReadSettings(File(), read));
    EXPECT_EQ(read, m_shared.settings);
}

TEST_F(Settings, TheStandardFontIsChosenAgainAndStaysSo)
{
    m_shared.settings.printerFont = 1;
    InForm([this] {
        EXPECT_TRUE(Font(1).isChecked());
        QTest::mouseClick(&Font(0), Qt::LeftButton, {}, QPoint(8, Font(0).height() / 2));
        EXPECT_EQ(m_shared.settings.printerFont, 0);
        Leave();
    });
    EXPECT_TRUE(File().startsWith("0,")) << File().toStdString();
    InForm([this] {
        EXPECT_TRUE(Font(0).isChecked());
        EXPECT_FALSE(Font(1).isChecked());
        Leave();
    });
}

TEST_F(Settings, LeaveTheOpenDatabaseItsShape)
{
    FillDatabase(1);
    InForm([this] {
        Type(u"InNumChoices"_s, u"3"_s);
        Type(u"InHiNum"_s, u"20"_s);
        Leave();
    });
    EXPECT_EQ(m_shared.database.Shape(), (LotteryShape{6, 49}));
    EXPECT_EQ(m_shared.settings.defaultPicks, 3);
}

TEST_F(Settings, EnterWalksThroughTheBoxesInTheirOrder)
{
    InForm([this] {
        EXPECT_EQ(FocusName(), u"InNumChoices"_s);
        for (const QString& next :
             {u"InHiNum"_s, u"InNumLines"_s, u"InSy"_s, u"InMyName"_s, u"ExitFonts"_s}) {
            QTest::keyClick(m_form->focusWidget(), Qt::Key_Return);
            EXPECT_EQ(FocusName(), next);
        }
        QTest::keyClick(m_form->focusWidget(), Qt::Key_Return);
    });
}

TEST_F(Settings, ANumberBoxTakesDigitsAloneAClickEmptiesItAndEnterJustifiesIt)
{
    const QList<QPair<QString, QString>> ways{
        {u"InNumChoices"_s, u"InHiNum"_s}, {u"InHiNum"_s, u"InNumLines"_s}, {u"InNumLines"_s, u"InSy"_s}};
    InForm([&] {
        for (const auto& [name, next] : ways) {
            InputBox& box = FormBox(name);
            const QString before = box.text();
            Type(name, u"a-."_s);
            EXPECT_EQ(box.text(), before) << name.toStdString();
            QTest::mouseClick(&box, Qt::LeftButton);
            EXPECT_EQ(box.text(), QString()) << name.toStdString();
            QTest::keyClicks(&box, u"5"_s);
            EXPECT_EQ(box.text(), u"5"_s) << name.toStdString();
            QTest::keyClick(&box, Qt::Key_Return);
            EXPECT_EQ(box.text(), u" 5"_s) << name.toStdString();
            EXPECT_EQ(FocusName(), next);
        }
        Leave();
    });
    EXPECT_EQ(File(), "0,5,5,5,\"$\",\"\"\r\n");
}

TEST_F(Settings, ANumberOutOfRangeBringsItsMessageAndTheUpperBound)
{
    const struct {
        QString box;
        QString typed;
        int message;
        QString after;
    } cases[] = {
        {u"InNumChoices"_s, u"0"_s, 27, u"10"_s}, {u"InNumChoices"_s, u"25"_s, 27, u"10"_s},
        {u"InHiNum"_s, u"75"_s, 28, u"60"_s},     {u"InHiNum"_s, u"0"_s, 28, u"60"_s},
        {u"InNumLines"_s, u"11"_s, 27, u"10"_s},  {u"InNumLines"_s, u"99999999999"_s, 27, u"10"_s},
    };
    InForm([&] {
        for (const auto& entry : cases) {
            m_prompts.expectedMessages = {entry.message};
            Type(entry.box, entry.typed);
            QTest::keyClick(&FormBox(entry.box), Qt::Key_Return);
            Settle();
            EXPECT_EQ(FormBox(entry.box).text(), entry.after) << entry.box.toStdString();
            EXPECT_TRUE(m_prompts.expectedMessages.empty()) << entry.box.toStdString();
        }
        Leave();
    });
    EXPECT_EQ(File(), "0,10,60,10,\"$\",\"\"\r\n");
}

TEST_F(Settings, TheFormStaysOpenWhenTheBoxLeftForTheButtonBringsAMessage)
{
    InForm([this] {
        Type(u"InHiNum"_s, u"61"_s);
        m_prompts.expectedMessages = {28};
        Leave();
        Settle();
        EXPECT_TRUE(m_form->isVisible());
        Leave();
    });
    EXPECT_EQ(m_shared.settings.defaultHighest, 60);
}

TEST_F(Settings, TheCaptionStaysWithTheFormThatAMessageKeepsOpen)
{
    InForm([this] {
        Type(u"InNumLines"_s, u"11"_s);
        m_prompts.expectedMessages = {27};
        Leave();
        Settle();
        EXPECT_TRUE(m_prompts.expectedMessages.empty());
        EXPECT_TRUE(m_form->isVisible());
        EXPECT_EQ(m_window.windowTitle(), u" Personalize"_s);
        Leave();
    });
    EXPECT_EQ(m_window.windowTitle(), u" Quillaby Menu"_s);
}

TEST_F(Settings, TheMenuIsHiddenWhileTheFormIsOpen)
{
    EXPECT_TRUE(m_window.Menu().isVisible());
    InForm([this] {
        EXPECT_FALSE(m_window.Menu().isVisible());
        EXPECT_EQ(m_window.ActiveForm(), nullptr);
        Leave();
    });
    EXPECT_TRUE(m_window.Menu().isVisible());
}

TEST_F(Settings, ADoubleQuoteCannotBeTypedOrPasted)
{
    InForm([this] {
        for (const QString& name : {u"InSy"_s, u"InMyName"_s}) {
            Type(name, u"a\"b"_s);
            EXPECT_EQ(FormBox(name).text(), u"ab"_s);
            FormBox(name).insert(u"\""_s);
            EXPECT_EQ(FormBox(name).text(), u"ab"_s);
        }
        Leave();
    });
    EXPECT_EQ(File(), "0,6,49,1,\"ab\",\"ab\"\r\n");
}

TEST_F(Settings, TheSymbolIsRightAlignedWhenItsBoxIsLeft)
{
    InForm([this] {
        Type(u"InSy"_s, u"kr"_s);
        QTest::keyClick(&FormBox(u"InSy"_s), Qt::Key_Return);
        EXPECT_TRUE(FormBox(u"InSy"_s).alignment().testFlag(Qt::AlignRight));
        Leave();
    });
    EXPECT_EQ(m_shared.settings.currencySymbol, u"kr"_s);
}

TEST_F(Settings, EscapeLeavesAsTheButtonDoesAndLosesNothing)
{
    InForm([this] {
        Type(u"InMyName"_s, u"Ann"_s);
        QTest::keyClick(m_form, Qt::Key_Escape);
    });
    EXPECT_EQ(File(), "0,6,49,1,\"$\",\"Ann\"\r\n");
}

TEST_F(Settings, WhatWasTypedIsKeptWhenTheFormIsClosedWhileAnotherWindowIsActive)
{
    InForm([this] {
        FormBox(u"InMyName"_s)
            .setText(u"Gertrud"_s); // no focus event comes, as in a window that is not active
        FormBox(u"InNumLines"_s).setText(u"4"_s);
        m_form->close();
    });
    EXPECT_EQ(File(), "0,6,49,4,\"$\",\"Gertrud\"\r\n");
    EXPECT_EQ(m_shared.settings.userName, u"Gertrud"_s);
}

TEST_F(Settings, ANumberOutOfRangeThatWasNeverCheckedIsNotTaken)
{
    InForm([this] {
        FormBox(u"InHiNum"_s).setText(u"99"_s);
        FormBox(u"InNumLines"_s).setText(QString());
        m_form->close();
    });
    EXPECT_EQ(File(), "0,6,49,1,\"$\",\"\"\r\n");
    EXPECT_EQ(m_shared.settings.defaultHighest, 49);
}

TEST_F(Settings, AnEmptiedNameHidesItsLabel)
{
    m_shared.settings.userName = u"Ann"_s;
    InForm([this] {
        QTest::mouseClick(&FormBox(u"InMyName"_s), Qt::LeftButton);
        Leave();
    });
    EXPECT_FALSE(Find<QLabel>(u"MyName"_s).isVisible());
    EXPECT_EQ(m_shared.settings.userName, QString());
}

TEST_F(Settings, AFileThatCannotBeWrittenIsToldAndTheSettingsStayInEffect)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"Personal.Lot"_s)); // a folder in the file's place
    InForm([this] {
        Type(u"InNumChoices"_s, u"7"_s);
        Leave();
    });
    ASSERT_EQ(m_prompts.notices.size(), 1);
    EXPECT_TRUE(m_prompts.notices.first().startsWith(u"The settings could not be saved to disk: "_s));
    EXPECT_TRUE(m_prompts.notices.first().contains(u"Personal.Lot"_s))
        << m_prompts.notices.first().toStdString();
    EXPECT_EQ(m_shared.settings.defaultPicks, 7);
    EXPECT_EQ(m_window.ActiveForm()->objectName(), u"LotoMenu"_s);
}

TEST_F(Settings, AreWrittenToTheProgramFolderWhateverTheCurrentFolder)
{
    QTemporaryDir elsewhere;
    QDir::setCurrent(elsewhere.path());
    InForm([this] { Leave(); });
    EXPECT_EQ(File(), "0,6,49,1,\"$\",\"\"\r\n");
    EXPECT_TRUE(QDir(elsewhere.path()).isEmpty());
}

TEST_F(Settings, TheFormStandsAtItsDistanceFromTheMainWindow)
{
    InForm([this] {
        EXPECT_EQ(m_form->pos() - m_window.frameGeometry().topLeft(), QPoint(180, 47));
        Leave();
    });
    m_window.resize(1000, 700);
    Settle();
    InForm([this] {
        EXPECT_EQ(m_form->pos() - m_window.frameGeometry().topLeft(), QPoint(267, 133));
        Leave();
    });
}

} // namespace
