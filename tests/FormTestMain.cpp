#include <gtest/gtest.h>

#include <QApplication>

#include <QLocale>

int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
