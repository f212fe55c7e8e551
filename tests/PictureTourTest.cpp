#include "app/PictureTour.h"

#include "database/InRecNum.h"
#include "tests/FormBench.h"
#include "tests/TestFiles.h"

#include <QImage>

using namespace Qt::StringLiterals;

namespace {

class PictureTour : public FormBench
{
protected:
    Tour FormsAndDialogs()
    {
        const auto records = [this] { return std::make_unique<InRecNum>(m_shared, &m_window); };
        const auto extract = [this] {
            return std::make_unique<Extract>(m_shared, m_prompts, m_window, &m_window);
        };
        return {.stops = {{FormName::LDbase, u"Editor"_s, {}}},
                .dialogs = {{u"Records"_s, records, u"CorInsDel3"_s},
                            {u"Range"_s, extract, {}},
                            {u"Range-help"_s, extract, u"EHelp"_s}}};
    }
};

TEST_F(PictureTour, SavesEachFormInFourWaysAndEachDialogInThree)
{
    Start();
    FillDatabase(30);
    const QString folder = m_folder.filePath(u"some/pictures"_s);
    EXPECT_TRUE(TakePictures(m_window, FormsAndDialogs(), folder).ok);
    const QStringList expected{
        u"Editor-1280x800.png"_s, u"Editor-dark.png"_s,  u"Editor-double.png"_s,   u"Editor.png"_s,
        u"Range-dark.png"_s,      u"Range-double.png"_s, u"Range-help-dark.png"_s, u"Range-help-double.png"_s,
        u"Range-help.png"_s,      u"Range.png"_s,        u"Records-dark.png"_s,    u"Records-double.png"_s,
        u"Records.png"_s,
    };
    EXPECT_EQ(NamesIn(folder), expected);
    const auto picture = [&folder](const QString& name) { return QImage(folder + u'/' + name); };
    EXPECT_EQ(picture(u"Editor.png"_s).size(), QSize(641, 458));
    EXPECT_EQ(picture(u"Editor-1280x800.png"_s).size(), QSize(1280, 800));
    EXPECT_EQ(picture(u"Records-double.png"_s).size(), picture(u"Records.png"_s).size() * 2);
    EXPECT_GT(picture(u"Range-help.png"_s).height(), picture(u"Range.png"_s).height());
}

TEST_F(PictureTour, LeavesTheEditorAtRestAndTheDatabaseAsItWas)
{
    Start();
    FillDatabase(30);
    const DrawDatabase before = m_shared.database;
    EXPECT_TRUE(TakePictures(m_window, FormsAndDialogs(), m_folder.filePath(u"pictures"_s)).ok);
    EXPECT_TRUE(m_shared.database.records == before.records);
    EXPECT_EQ(m_shared.database.title, before.title);
    EXPECT_EQ(m_shared.editMode, EditMode::Normal);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(PictureTour, AFolderThatCannotBeMadeIsSaid)
{
    Start();
    Place(m_folder.filePath(u"file"_s), "no folder");
    const Outcome taken = TakePictures(m_window, FormsAndDialogs(), m_folder.filePath(u"file/pictures"_s));
    EXPECT_FALSE(taken.ok);
    EXPECT_TRUE(taken.reason.startsWith(u"The folder \""_s)) << taken.reason.toStdString();
}

} // namespace
