#include "app/AccessibleButtons.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QKeySequence>
#include <QRadioButton>

namespace {

/// What is read of a caption: without the mark of the access key.
QString Spoken(const QString& caption)
{
    QString spoken;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption.at(i) == u'&' && i + 1 < caption.size()) {
            ++i;
        }
        spoken += caption.at(i);
    }
    return spoken;
}

/// A check box or option button.
class AccessibleMark : public QAccessibleWidget
{
public:
    explicit AccessibleMark(QAbstractButton* button)
        : QAccessibleWidget(button, qobject_cast<QRadioButton*>(button) != nullptr ? QAccessible::RadioButton
                                                                                   : QAccessible::CheckBox)
    {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name && widget()->accessibleName().isEmpty()) {
            const QString caption = Spoken(Button()->text());
            return caption.isEmpty() ? QAccessibleWidget::text(kind) : caption;
        }
        if (kind == QAccessible::Accelerator) {
            return Button()->shortcut().toString(QKeySequence::NativeText);
        }
        return QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = Button()->isChecked();
        const auto* box = qobject_cast<const QCheckBox*>(widget());
        state.checkStateMixed = box != nullptr && box->checkState() == Qt::PartiallyChecked;
        state.pressed = Button()->isDown();
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        QStringList names;
        if (widget()->isEnabled()) {
            names << toggleAction();
        }
        return names + QAccessibleWidget::actionNames();
    }

    [[nodiscard]] QStringList keyBindingsForAction(const QString& action) const override
    {
        const QString keys = Button()->shortcut().toString();
        return action == toggleAction() && !keys.isEmpty() ? QStringList(keys) : QStringList();
    }

    void doAction(const QString& action) override
    {
        if (!widget()->isEnabled()) {
            return;
        }
        if (action == toggleAction() || action == pressAction()) {
            Button()->click();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

private:
    [[nodiscard]] QAbstractButton* Button() const { return qobject_cast<QAbstractButton*>(widget()); }
};

QAccessibleInterface* MakeAccessibleMark(const QString& /*className*/, QObject* object)
{
    if (qobject_cast<QCheckBox*>(object) == nullptr && qobject_cast<QRadioButton*>(object) == nullptr) {
        return nullptr;
    }
    return new AccessibleMark(qobject_cast<QAbstractButton*>(object));
}

} // namespace

void InstallAccessibleButtons()
{
    QAccessible::installFactory(&MakeAccessibleMark);
}
