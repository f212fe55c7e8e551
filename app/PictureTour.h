#pragma once

#include "app/LGLOBAL.h"
#include "app/MDIContainer.h"
#include "app/Outcome.h"

#include <QString>

#include <vector>

/// What a form can look like beyond how it opens: a button pressed by its object name.
struct TourStop {
    FormName form = FormName::LotoMenu;
    QString name;   ///< of the pictures
    QString button; ///< clicked after the form is shown; "" for none
};

/// Walks through the forms and saves a picture of each: at the opening size, at 1280 x 800, at twice the
/// density, and in a dark palette. For the manual, and for everyone who checks looks.
///
/// @param window  started, with a database open
/// @param folder  made when it is not there
[[nodiscard]] Outcome TakePictures(LGLOBAL& shared, MDIContainer& window, const std::vector<TourStop>& stops,
                                   const QString& folder);
