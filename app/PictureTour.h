#pragma once

#include "app/LGLOBAL.h"
#include "app/MDIContainer.h"
#include "app/Outcome.h"

#include <QDialog>
#include <QPalette>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

/// What a form can look like beyond how it opens: a button pressed by its object name.
struct TourStop {
    FormName form = FormName::LotoMenu;
    QString name;                                  ///< of the pictures
    QString button;                                ///< clicked after the form is shown; "" for none
    std::function<void(WorkingForm& form)> fill{}; ///< puts something to see into the form that is shown
};

/// A dialog on the tour. It is only shown, never run: nobody is there to answer it.
struct TourDialog {
    QString name;                                   ///< of the pictures
    std::function<std::unique_ptr<QDialog>()> make; ///< called while the main window is shown
    QString button;                                 ///< clicked after the dialog is shown; "" for none
    bool savesWhenLeft = false; ///< its way of leaving is to save: on the tour it is just put away
};

/// Where the tour leads.
struct Tour {
    std::vector<TourStop> stops;
    std::vector<TourDialog> dialogs;
};

/// A dark palette as desktops have it.
[[nodiscard]] QPalette DarkPalette();

/// Walks through the forms and saves a picture of each: at the opening size, at 1280 x 800, at twice the
/// density, and in a dark palette; then of each dialog, as it opens, at twice the density, and in the dark
/// palette. For the manual, and for everyone who checks looks.
///
/// @param window  started, with a database open
/// @param folder  made when it is not there
[[nodiscard]] Outcome TakePictures(MDIContainer& window, const Tour& tour, const QString& folder);
