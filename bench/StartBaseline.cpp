#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>

#include <cstring>

namespace {

/// As many buttons as the menu has, and a title in large letters, by the shortest way.
QWidget* PlainMenu()
{
    constexpr int kButtons = 12;
    constexpr int kRows = 6;
    auto* menu = new QWidget;
    auto* grid = new QGridLayout(menu);
    auto* title = new QLabel(QStringLiteral("Title of a Menu"));
    QFont letters = title->font();
    letters.setPointSizeF(letters.pointSizeF() * 2);
    letters.setBold(true);
    title->setFont(letters);
    grid->addWidget(title, 0, 0, 1, 2, Qt::AlignCenter);
    for (int i = 0; i < kButtons; ++i) {
        auto* button = new QPushButton(QStringLiteral("&Button %1 of the menu").arg(i + 1));
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        grid->addWidget(button, 1 + i % kRows, i / kRows);
    }
    return menu;
}

} // namespace

/// The smallest program with a window and a text in it: a button. With the argument "equal" its window is as
/// large as quillaby's, so that as many pixels are painted and kept; with "menu" a plain menu stands in it.
int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    const char* const wanted = argc > 1 ? argv[1] : "";
    QMainWindow window;
    if (std::strcmp(wanted, "menu") == 0) {
        window.setCentralWidget(PlainMenu());
    } else {
        window.setCentralWidget(new QPushButton(QStringLiteral("Start")));
    }
    if (*wanted != '\0') {
        window.resize(641, 458);
    }
    window.show();
    return QApplication::exec();
}
