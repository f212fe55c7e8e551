#include "tests/EveryForm.h"

#include "app/AMsgbox.h"
#include "app/AllYesNo.h"
#include "app/DatabaseReport.h"
#include "app/PrintPreview.h"
#include "app/PrinterDoor.h"
#include "app/Printing.h"
#include "database/InRecNum.h"
#include "invest/InInvNum.h"

using namespace Qt::StringLiterals;

namespace {

struct Place {
    FormName form;
    QString name;
    QString button{}; ///< pressed once the form is shown
};

std::vector<Place> Places()
{
    return {{FormName::LotoMenu, u"LotoMenu"_s},
            {FormName::LDbase, u"LDbase"_s},
            {FormName::LDbase, u"LDbase with help"_s, u"DHelp"_s},
            {FormName::Lottery, u"Lottery"_s},
            {FormName::Lottery, u"Lottery with help"_s, u"PHelp"_s},
            {FormName::LHotCold, u"LHotCold"_s},
            {FormName::LHotCold, u"LHotCold with help"_s, u"HelpHCD"_s},
            {FormName::LCheckWin, u"LCheckWin"_s},
            {FormName::LCheckWin, u"LCheckWin with help"_s, u"CHelp"_s},
            {FormName::LGraph, u"LGraph"_s},
            {FormName::LGraph, u"LGraph sorted"_s, u"ChngView"_s},
            {FormName::LInvTrack, u"LInvTrack"_s},
            {FormName::LInvTrack, u"LInvTrack with help"_s, u"IHelp"_s}};
}

} // namespace

void EveryForm::VisitForms(const std::function<void(QWidget& form, const QString& name)>& look)
{
    const QSize opening = m_window.size();
    for (const Place& place : Places()) {
        for (const QSize size : {opening, QSize(1280, 800)}) {
            m_window.resize(size);
            m_window.ShowForm(place.form);
            m_prompts.SetBusyPointer(false);
            Settle();
            if (!place.button.isEmpty()) {
                Find<QAbstractButton>(place.button).click();
                Settle();
            }
            look(*m_window.ActiveForm(), place.name);
        }
    }
    m_window.resize(opening);
    m_window.ShowForm(FormName::LotoMenu);
}

void EveryForm::VisitDialogs(const std::function<void(QWidget& form, const QString& name)>& look)
{
    const auto visit = [&](QDialog& dialog, const QString& name) {
        dialog.show();
        Settle();
        look(dialog, name);
        dialog.done(QDialog::Rejected);
    };
    m_shared.messageNumber = 16; // the longest
    AMsgbox message(m_shared, &m_window);
    visit(message, u"AMsgbox"_s);
    AMsgbox offer(m_shared, u"\"Mine.Lto\" is not there any more."_s, &m_window);
    offer.Offer(u"&Remove from List"_s, [] {});
    visit(offer, u"AMsgbox with an offer"_s);
    m_shared.questionNumber = 3;
    AllYesNo question(m_shared, &m_window);
    question.OfferPreview([] {});
    visit(question, u"AllYesNo"_s);
    const PrintedDocument pages = MakeDocument(m_shared, u"Draws"_s, [this](Printout& printout) {
        PrintDatabaseReport(printout, m_shared.database, m_shared.WhichCnt, m_shared.locale);
    });
    PrintPreview preview(pages, UsualPaper(m_shared.locale), &m_window);
    visit(preview, u"PrintPreview"_s);
    for (const QString& task : {u"CorInsDel0"_s, u"CorInsDel1"_s, u"CorInsDel2"_s, u"CorInsDel3"_s}) {
        InRecNum records(m_shared, &m_window);
        records.show();
        records.findChild<QAbstractButton*>(task)->click();
        visit(records, u"InRecNum "_s + task);
    }
    ChangeFnt settings(m_shared, m_prompts, m_window, &m_window);
    visit(settings, u"ChangeFnt"_s);
    Extract extract(m_shared, m_prompts, m_window, &m_window);
    visit(extract, u"Extract"_s);
    Extract help(m_shared, m_prompts, m_window, &m_window);
    help.show();
    help.findChild<QAbstractButton*>(u"EHelp"_s)->click();
    visit(help, u"Extract with help"_s);
    constexpr int kAnyRow = 7;
    InInvNum line(m_shared, kAnyRow, &m_window);
    visit(line, u"InInvNum"_s);
}

void EveryForm::Visit(const std::function<void(QWidget& form, const QString& name)>& look)
{
    Start();
    Settle();
    look(m_window.Menu(), u"LotoMenu at the start"_s);
    m_shared.settings.userName = u"Zoë"_s;
    m_window.Menu().ShowUserName();
    FillDatabase(60);
    m_shared.database.modified = 0;
    m_window.ShowForm(FormName::LotoMenu);
    VisitForms(look);
    VisitDialogs(look);
}
