#include "app/AccessibleButtons.h"
#include "app/ShownFocus.h"

#include <QApplication>
#include <QLocale>
#include <gtest/gtest.h>

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    testing::InitGoogleTest(&argc, argv);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const QApplication application(argc, argv);
    InstallAccessibleButtons();
    InstallShownFocus();
    return RUN_ALL_TESTS();
}
