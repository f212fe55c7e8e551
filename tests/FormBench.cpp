#include "tests/FormBench.h"

#include "tests/AllForms.h"

using namespace Qt::StringLiterals;

FormBench::FormBench()
{
    m_shared.locale = QLocale(QLocale::English, QLocale::UnitedStates);
    m_shared.today = [] { return QDate(2026, 11, 18); }; // a Wednesday
    AddAllForms(m_window, m_shared, m_prompts);
    m_help = new HelpDesk(m_shared, m_prompts, &m_window.Menu());
    m_window.SetHelp([this] { m_help->OpenContents(); });
}

FormBench::~FormBench()
{
    Settle();
    EXPECT_TRUE(m_prompts.expectedMessages.empty())
        << "a message did not come: " << m_prompts.expectedMessages.front();
    EXPECT_TRUE(m_prompts.answers.empty()) << "a question was not asked";
    EXPECT_TRUE(m_prompts.files.empty()) << "a file was not asked for";
    EXPECT_EQ(m_dialogsToCome, 0) << "a dialog did not open";
    EXPECT_FALSE(m_prompts.busy) << "the busy pointer was left on";
    QDir::setCurrent(m_oldFolder);
}

void FormBench::Start()
{
    m_window.Start();
    m_window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
}

void FormBench::OpenEditor()
{
    const DrawDatabase database = m_shared.database;
    Start();
    if (database.count > 0) {
        m_shared.database = database; // starting begins with an empty one
    }
    Click(u"DBaseForm"_s);
    Settle();
}

void FormBench::FillDatabase(int records)
{
    DrawDatabase& database = m_shared.database;
    database.columns = 8;
    database.highest = 49;
    database.title = u"Test 6/49"_s;
    database.fileName = u"Test.Lto"_s;
    database.CheckDay(4, true);
    database.CheckDay(7, true);
    QDate date(2000, 1, 1); // a Saturday
    for (int record = 1; record <= records; ++record) {
        std::vector<int> numbers;
        for (int k = 0; k < 6; ++k) {
            numbers.push_back((record - 1 + k) % 49 + 1);
        }
        database.Append(date, numbers);
        date = date.addDays(date.dayOfWeek() == Qt::Saturday ? 4 : 3);
    }
}

void FormBench::OnDialog(const std::function<void(QWidget& dialog)>& act)
{
    ++m_dialogsToCome;
    WhenModalOpens(
        [this, act](QWidget* dialog) {
            --m_dialogsToCome;
            act(*dialog);
        },
        &m_dialogWatch);
}

QString FormBench::FocusName() const
{
    return m_window.focusWidget() == nullptr ? QString() : m_window.focusWidget()->objectName();
}

void FormBench::TypeInto(const QString& box, const QString& text)
{
    InputBox& target = Box(box);
    target.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&target, text);
}

void FormBench::TypeDraw(const QStringList& numbers)
{
    for (qsizetype i = 0; i < numbers.size(); ++i) {
        TypeInto(u"DYourNumIn%1"_s.arg(i), numbers.at(i));
    }
}

QString FormBench::Cell(const QString& grid, int row, int column)
{
    const QAbstractItemModel* model = Find<QTableView>(grid).model();
    return model->index(row, column).data().toString();
}
