#include "tests/AllForms.h"

#include "app/ChangeFnt.h"
#include "database/Extract.h"
#include "database/LDbase.h"
#include "database/LGraph.h"
#include "hotcold/LHotCold.h"
#include "invest/LInvTrack.h"
#include "picks/LCheckWin.h"
#include "picks/Lottery.h"

namespace {

template <typename Form>
void AddForm(MDIContainer& window, FormName name, LGLOBAL& shared, Prompts& prompts)
{
    window.AddForm(name, [&shared, &prompts](FormSwitcher& switcher, QWidget* parent) {
        return new Form(shared, prompts, switcher, parent);
    });
}

template <typename Dialog>
void AddDialog(MDIContainer& window, FormName name, LGLOBAL& shared, Prompts& prompts)
{
    window.AddDialog(name, [&shared, &prompts](FormSwitcher& switcher, QWidget* mainWindow) {
        Dialog(shared, prompts, switcher, mainWindow).exec();
    });
}

} // namespace

void AddAllForms(MDIContainer& window, LGLOBAL& shared, Prompts& prompts)
{
    AddForm<LDbase>(window, FormName::LDbase, shared, prompts);
    AddForm<LHotCold>(window, FormName::LHotCold, shared, prompts);
    AddForm<LCheckWin>(window, FormName::LCheckWin, shared, prompts);
    AddForm<LInvTrack>(window, FormName::LInvTrack, shared, prompts);
    AddForm<Lottery>(window, FormName::Lottery, shared, prompts);
    AddForm<LGraph>(window, FormName::LGraph, shared, prompts);
    AddDialog<ChangeFnt>(window, FormName::ChangeFnt, shared, prompts);
    AddDialog<Extract>(window, FormName::Extract, shared, prompts);
}
