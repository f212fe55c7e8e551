#include "database/Extract.h"

#include "app/DialogPlacement.h"
#include "app/TextPictures.h"
#include "database/ExtractHelp.h"
#include "database/ExtractRecords.h"
#include "ui_Extract.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kMustBeBetween = 43;
constexpr int kLowGreaterThanHigh = 47;

QString RecordText(double record)
{
    return Format(record, u"####");
}

} // namespace

Extract::Extract(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* mainWindow)
    : QDialog(mainWindow), m_shared(shared), m_prompts(prompts), m_switcher(switcher),
      m_events(new FormEvents(shared, prompts, this)), m_ui(std::make_unique<Ui::Extract>())
{
    m_ui->setupUi(this);
    m_ui->ETextBox->setPlainText(ExtractHelpText());
    ShowHelp(false);
    m_switcher.SetCaption(u" Extract"_s);
    m_shared.extractLow = 1;
    m_shared.extractHigh = m_shared.database.count;
    m_ui->LowRecNo->setText(RecordText(1));
    m_ui->HighRecNo->setText(RecordText(m_shared.database.count));
    SetUpBoxes();
    m_events->WatchInputBoxes();
    m_events->OnClick(m_ui->EExtractRecs, [this] { ExtractRange(); });
    m_events->OnClick(m_ui->EExit, [this] { reject(); });
    m_events->OnClick(m_ui->EHelp, [this] { ShowHelp(m_ui->ETextBox->isHidden()); });
}

Extract::~Extract() = default;

void Extract::SetUpBoxes()
{
    InputRules low;
    low.next = [this] { return m_ui->HighRecNo; };
    low.leave = [this](InputBox& box, bool /*edited*/) { return LeaveLow(box); };
    m_ui->LowRecNo->Follow(m_shared, low);

    InputRules high;
    high.next = [this] { return m_ui->EExtractRecs; };
    high.leave = [this](InputBox& box, bool /*edited*/) { return LeaveHigh(box); };
    m_ui->HighRecNo->Follow(m_shared, high);
}

std::optional<Message> Extract::LeaveLow(InputBox& box)
{
    const double value = Val(box.text());
    if (value < 1 || value > m_shared.database.count) {
        m_shared.extractLow = 1;
        box.setText(RecordText(1));
        return Message{.number = kMustBeBetween, .arg1 = Str(m_shared.database.count), .arg2 = u" 1"_s};
    }
    m_shared.extractLow = static_cast<float>(value);
    box.setText(RecordText(value));
    return std::nullopt;
}

std::optional<Message> Extract::LeaveHigh(InputBox& box)
{
    const int count = m_shared.database.count;
    const double value = Val(box.text()) == 0 ? count : Val(box.text());
    const bool inRange = value >= m_shared.extractLow && value <= count;
    m_shared.extractHigh = static_cast<float>(inRange ? value : count);
    box.setText(RecordText(m_shared.extractHigh));
    if (inRange) {
        return std::nullopt;
    }
    return Message{.number = kMustBeBetween, .arg1 = Str(count), .arg2 = Str(m_shared.extractLow)};
}

void Extract::ExtractRange()
{
    if (m_shared.extractLow > m_shared.extractHigh) {
        Show(m_shared, m_prompts, {.number = kLowGreaterThanHigh});
        return;
    }
    m_prompts.SetBusyPointer(true); // until the editor shows the result
    ExtractRecords(m_shared.database, m_shared.extractLow, m_shared.extractHigh);
    accept();
}

void Extract::ShowHelp(bool opens)
{
    m_ui->ETextBox->setVisible(opens);
    m_ui->EHelp->setText(opens ? u"Close &Help"_s : u"Quick &Help"_s);
    adjustSize();
}

void Extract::reject()
{
    m_switcher.SetCaption(u" Quillaby Menu"_s);
    QDialog::reject();
}

void Extract::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    PlaceDialog(*this, parentWidget(), m_shared.layoutSize, {{2000, 1300}, {3200, 2200}});
    m_ui->LowRecNo->setFocus(Qt::TabFocusReason);
}
