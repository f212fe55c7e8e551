#include "app/PictureTour.h"
#include "tests/EveryForm.h"

#include <QAccessible>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include <map>
#include <set>

using namespace Qt::StringLiterals;

namespace {

/// What a user works, and so has to hear the name of.
bool IsInteractive(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::PushButton:
    case QAccessible::ButtonMenu:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::EditableText:
    case QAccessible::ComboBox:
    case QAccessible::SpinBox:
    case QAccessible::Slider:
    case QAccessible::Table:
    case QAccessible::List:
    case QAccessible::Tree:
    case QAccessible::Chart:
    case QAccessible::PageTab:
        return true;
    default:
        return false;
    }
}

bool BelongsToAnother(const QWidget& widget)
{
    // Inner parts of the toolkit's own widgets: as the corner of a table, whose work Ctrl+A does.
    return widget.objectName().startsWith(u"qt_"_s) || widget.inherits("QTableCornerButton");
}

std::vector<QWidget*> Controls(const QWidget& form)
{
    std::vector<QWidget*> controls;
    for (QWidget* widget : form.findChildren<QWidget*>()) {
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
        if (widget->isVisible() && !widget->isWindow() && !BelongsToAnother(*widget) && spoken != nullptr &&
            IsInteractive(spoken->role())) {
            controls.push_back(widget);
        }
    }
    return controls;
}

QString NameOf(QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name).simplified();
}

TEST(Accessibility, EveryControlHasANameAndNoTwoOfAFormShareOne)
{
    EveryForm forms;
    forms.Visit([](QWidget& form, const QString& where) {
        std::map<QString, QString> named;
        for (QWidget* control : Controls(form)) {
            const QString name = NameOf(*control);
            EXPECT_NE(name, QString()) << where.toStdString() << ": " << control->objectName().toStdString();
            EXPECT_FALSE(named.contains(name))
                << where.toStdString() << ": \"" << name.toStdString() << "\" is both "
                << named[name].toStdString() << " and " << control->objectName().toStdString();
            named[name] = control->objectName();
        }
        EXPECT_FALSE(named.empty()) << where.toStdString();
    });
}

/// All that Tab comes by, and from option buttons the arrow keys.
std::set<QWidget*> ReachedByKeys(QWidget& form)
{
    std::set<QWidget*> reached;
    QWidget* window = form.window();
    const auto note = [&] {
        reached.insert(window->focusWidget());
        const auto* option = qobject_cast<QRadioButton*>(window->focusWidget());
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down}) {
            for (int i = 0; option != nullptr && i < 10; ++i) {
                QTest::keyClick(window->focusWidget(), key);
                reached.insert(window->focusWidget());
            }
        }
    };
    constexpr int kMoreThanThereAre = 100;
    const QWidget* first = nullptr;
    for (int i = 0; i < kMoreThanThereAre; ++i) {
        QTest::keyClick(window->focusWidget() == nullptr ? window : window->focusWidget(), Qt::Key_Tab);
        QCoreApplication::processEvents();
        if (window->focusWidget() == nullptr || (first != nullptr && window->focusWidget() == first)) {
            break;
        }
        first = first == nullptr ? window->focusWidget() : first;
        note();
    }
    return reached;
}

TEST(Accessibility, EveryControlIsReachedByTheTabAndArrowKeys)
{
    EveryForm forms;
    forms.Visit([](QWidget& form, const QString& where) {
        form.window()->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.window())) << where.toStdString();
        const std::set<QWidget*> reached = ReachedByKeys(form);
        for (QWidget* control : Controls(form)) {
            const QWidget* target = control->focusProxy() == nullptr ? control : control->focusProxy();
            if (control->isEnabled() && control->focusPolicy() != Qt::NoFocus) {
                EXPECT_TRUE(reached.contains(const_cast<QWidget*>(target)))
                    << where.toStdString() << ": " << control->objectName().toStdString();
            }
        }
        for (QWidget* widget : reached) { // what has the focus has to be in sight
            EXPECT_TRUE(widget->isVisible()) << where.toStdString() << widget->objectName().toStdString();
        }
    });
}

TEST(Accessibility, EveryControlTakesTheFocusButTheGridsOfCountsWhichShowAllTheyHold)
{
    const QStringList counts{u"DGrid2"_s, u"DGrid3"_s, u"DGrid4"_s};
    EveryForm forms;
    forms.Visit([&](QWidget& form, const QString& where) {
        for (const QWidget* control : Controls(form)) {
            if (counts.contains(control->objectName()) ||
                qobject_cast<const QRadioButton*>(control) != nullptr) {
                continue; // Tab comes to one option button of a group, the arrows to the others
            }
            EXPECT_NE(control->focusPolicy() & Qt::TabFocus, 0)
                << where.toStdString() << ": " << control->objectName().toStdString();
        }
    });
}

/// Every control that takes the focus, and whether it looks another way when it has it.
void ExpectTheFocusShows(QWidget& form, const QString& where)
{
    QWidget* window = form.window();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window)) << where.toStdString();
    window->setAttribute(Qt::WA_KeyboardFocusChange); // as after the Tab key
    const std::vector<QWidget*> controls = Controls(form);
    for (QWidget* control : controls) {
        const auto* button = qobject_cast<const QPushButton*>(control);
        const bool isDefault =
            button != nullptr && button->isDefault(); // has the line of the focus at all times
        if (!control->isEnabled() || control->focusPolicy() == Qt::NoFocus || isDefault) {
            continue;
        }
        control->setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        const QImage with = control->grab().toImage();
        control->clearFocus();
        QCoreApplication::processEvents();
        EXPECT_NE(with, control->grab().toImage())
            << where.toStdString() << ": " << control->objectName().toStdString();
    }
}

TEST(Accessibility, TheFocusShowsOnEveryControlInLightAndDark)
{
    const QPalette light = QApplication::palette();
    for (const QPalette& palette : {light, DarkPalette()}) {
        QApplication::setPalette(palette);
        EveryForm forms;
        forms.Visit([](QWidget& form, const QString& where) {
            constexpr int kLarge = 1280; // once is enough
            if (form.window()->width() < kLarge) {
                ExpectTheFocusShows(form, where);
            }
        });
    }
    QApplication::setPalette(light);
}

class AccessibleForms : public FormBench
{
protected:
    /// What a screen reader does to work a control.
    void Work(const QString& name)
    {
        auto* spoken = QAccessible::queryAccessibleInterface(&Find<QWidget>(name));
        ASSERT_NE(spoken->actionInterface(), nullptr);
        spoken->actionInterface()->doAction(spoken->actionInterface()->actionNames().value(0));
    }
};

TEST_F(AccessibleForms, ACheckBoxWorkedByAScreenReaderDoesWhatAClickDoes)
{
    FillDatabase(30);
    OpenEditor();
    EXPECT_EQ(m_shared.WhichCnt, CountMode::TimesDrawn);
    const QString timesDrawn = Cell(u"DGrid2"_s, 0, 0);
    Work(u"WhichCnt"_s);
    EXPECT_FALSE(Find<QCheckBox>(u"WhichCnt"_s).isChecked());
    EXPECT_EQ(m_shared.WhichCnt, CountMode::SinceLastDrawn);
    EXPECT_NE(Cell(u"DGrid2"_s, 0, 0), timesDrawn);
    const bool sunday = m_shared.database.CheckedDays().at(1);
    Work(u"DaysofWeek0"_s);
    EXPECT_NE(m_shared.database.CheckedDays().at(1), sunday);
}

TEST_F(AccessibleForms, AnOptionButtonWorkedByAScreenReaderDoesWhatAClickDoes)
{
    Start();
    OnDialog([](QWidget& dialog) {
        auto* spoken = QAccessible::queryAccessibleInterface(&In<QWidget>(dialog, u"PtrFt1"_s));
        spoken->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        ClickIn(dialog, u"ExitFonts"_s);
    });
    Click(u"PtrFnt"_s);
    EXPECT_EQ(m_shared.settings.printerFont, 1);
}

TEST_F(AccessibleForms, AMarkSaysItsNameItsStateAndItsKey)
{
    FillDatabase(30);
    OpenEditor();
    auto& box = Find<QCheckBox>(u"DaysofWeek3"_s);
    const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&box);
    EXPECT_EQ(spoken->role(), QAccessible::CheckBox);
    EXPECT_TRUE(spoken->state().checkable);
    EXPECT_TRUE(spoken->state().checked);
    EXPECT_TRUE(spoken->state().focusable);
    box.setText(u"Salt && &Pepper"_s);
    box.setAccessibleName(QString());
    EXPECT_EQ(spoken->text(QAccessible::Name), u"Salt & Pepper"_s);
    EXPECT_EQ(spoken->text(QAccessible::Accelerator), u"Alt+P"_s);
    box.setEnabled(false);
    box.setChecked(false);
    Work(u"DaysofWeek3"_s);
    EXPECT_FALSE(box.isChecked());
}

TEST_F(AccessibleForms, APushButtonWorkedByAScreenReaderRunsItsCommand)
{
    Start();
    Work(u"PickForm"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_window.ActiveForm()->objectName() == u"Lottery"_s; }));
}

} // namespace
