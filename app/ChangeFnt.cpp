#include "app/ChangeFnt.h"

#include "app/DialogPlacement.h"
#include "app/StartUp.h"
#include "app/TextPictures.h"
#include "ui_ChangeFnt.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kFromOneToTen = 27;
constexpr int kFromOneToSixty = 28;
constexpr int kMostForms = 10;

LeaveRule UpTo(int highest, int message)
{
    return NumberFromTo(1, highest, {.number = message}, u"##"_s, [highest] { return highest; });
}

QString SettingText(int value)
{
    return RightJustify(Format(value, u"##"), 2);
}

} // namespace

ChangeFnt::ChangeFnt(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* mainWindow)
    : QDialog(mainWindow), m_shared(shared), m_prompts(prompts), m_switcher(switcher),
      m_events(new FormEvents(shared, prompts, this)), m_ui(std::make_unique<Ui::ChangeFnt>())
{
    m_ui->setupUi(this);
    m_switcher.SetCaption(u" Personalize"_s);
    ShowSettings();
    SetUpBoxes();
    m_events->WatchInputBoxes();
    m_events->OnClick(m_ui->PtrFt0, [this] { m_shared.settings.printerFont = 0; });
    m_events->OnClick(m_ui->PtrFt1, [this] { m_shared.settings.printerFont = 1; });
    m_events->OnClick(m_ui->ExitFonts, [this] { SaveAndLeave(); });
}

ChangeFnt::~ChangeFnt() = default;

void ChangeFnt::ShowSettings()
{
    const AppSettings& settings = m_shared.settings;
    m_ui->PtrFt0->setChecked(settings.printerFont == 0);
    m_ui->PtrFt1->setChecked(settings.printerFont == 1);
    m_ui->InNumChoices->setText(SettingText(settings.defaultPicks));
    m_ui->InHiNum->setText(SettingText(settings.defaultHighest));
    m_ui->InNumLines->setText(SettingText(settings.entryForms));
    m_ui->InSy->setText(settings.currencySymbol);
    m_ui->InMyName->setText(settings.userName);
}

void ChangeFnt::SetUpBoxes()
{
    InputRules picks;
    picks.next = [this] { return m_ui->InHiNum; };
    picks.leave = UpTo(kMostPicks, kFromOneToTen);
    m_ui->InNumChoices->Follow(m_shared, picks);

    InputRules highest;
    highest.next = [this] { return m_ui->InNumLines; };
    highest.leave = UpTo(kMostNumbers, kFromOneToSixty);
    m_ui->InHiNum->Follow(m_shared, highest);

    InputRules forms;
    forms.next = [this] { return m_ui->InSy; };
    forms.leave = UpTo(kMostForms, kFromOneToTen);
    m_ui->InNumLines->Follow(m_shared, forms);

    InputRules symbol{.keys = InputRules::Keys::QuotedText};
    symbol.next = [this] { return m_ui->InMyName; };
    symbol.leave = [](InputBox& box, bool /*edited*/) {
        box.setAlignment(Qt::AlignRight);
        return std::nullopt;
    };
    m_ui->InSy->Follow(m_shared, symbol);

    InputRules name{.keys = InputRules::Keys::QuotedText};
    name.next = [this] { return m_ui->ExitFonts; };
    name.leave = [this](InputBox& box, bool /*edited*/) {
        m_shared.settings.userName = box.text();
        return std::nullopt;
    };
    m_ui->InMyName->Follow(m_shared, name);
}

void ChangeFnt::SaveAndLeave()
{
    AppSettings& settings = m_shared.settings;
    // A box that never lost the focus, because its window was not the active one, has not been checked yet.
    const auto number = [](const InputBox* box, int highest, qint16 before) {
        const qint16 typed = ToInt16(Val(box->text())).value_or(0);
        return typed >= 1 && typed <= highest ? typed : before;
    };
    settings.defaultPicks = number(m_ui->InNumChoices, kMostPicks, settings.defaultPicks);
    settings.defaultHighest = number(m_ui->InHiNum, kMostNumbers, settings.defaultHighest);
    settings.entryForms = number(m_ui->InNumLines, kMostForms, settings.entryForms);
    settings.userName = m_ui->InMyName->text();
    settings.currencySymbol = m_ui->InSy->text();
    SavePersonalSettings(m_shared, m_prompts);
    m_switcher.SetCaption(u" Quillaby Menu"_s);
    accept();
}

void ChangeFnt::reject()
{
    m_ui->ExitFonts->click();
}

void ChangeFnt::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    PlaceDialog(*this, parentWidget(), m_shared.layoutSize, {{2700, 700}, {4000, 2000}});
    m_ui->InNumChoices->setFocus(Qt::TabFocusReason);
}
