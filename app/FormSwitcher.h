#pragma once

#include <QString>

/// The forms that take the main window's place one at a time, and the dialogs the menu opens.
enum class FormName {
    LotoMenu,
    LDbase,
    Lottery,
    LCheckWin,
    LGraph,
    Extract,
    LInvTrack,
    ChangeFnt,
    LHotCold,
};

/// Brings forms to the front. main.cpp says how each form is made, so no form needs to know another.
class FormSwitcher
{
public:
    virtual ~FormSwitcher() = default;

    /// Loads the form and shows it in the place of the one that is shown. A form that this version does not
    /// have yet is said so plainly, and the one that is shown stays.
    virtual void ShowForm(FormName name) = 0;

    /// Takes the form that is shown out of sight, runs a modal dialog, and returns when it is closed. A
    /// dialog that this version does not have yet is said so plainly, and the form that is shown stays.
    /// @return whether there is such a dialog.
    virtual bool RunDialog(FormName name) = 0;

    /// Takes the form that is shown out of sight until ShowForm.
    virtual void HideForm() = 0;

    /// Opens the help at its contents.
    virtual void ShowHelp() = 0;

    /// Says plainly that something comes with a later version.
    virtual void TellComesLater(const QString& what) = 0;

    /// The main window's caption.
    virtual void SetCaption(const QString& caption) = 0;

    /// The form that is shown has opened or saved a file: the window says which one is open, in the place the
    /// desktop has for it.
    virtual void FileChanged() = 0;

    /// Ends the program at once; whoever calls has asked before.
    virtual void EndProgram() = 0;

protected:
    FormSwitcher() = default;
    FormSwitcher(const FormSwitcher&) = default;
    FormSwitcher(FormSwitcher&&) = default;
    FormSwitcher& operator=(const FormSwitcher&) = default;
    FormSwitcher& operator=(FormSwitcher&&) = default;
};
