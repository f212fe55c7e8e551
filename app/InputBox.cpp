#include "app/InputBox.h"

#include "app/KeyFilters.h"
#include "app/TextPictures.h"

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QHideEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPalette>
#include <QValidator>

#include <algorithm>
#include <utility>

namespace {

/// Lets a text in only if each of its characters may be typed. Blanks pass, since the program itself writes
/// numbers right-justified; those that a user types or composes are refused before.
class CharacterValidator : public QValidator
{
public:
    explicit CharacterValidator(const InputBox* box) : QValidator(nullptr), m_box(box) {}

    State validate(QString& text, int& /*cursor*/) const override
    {
        const bool allowed = std::all_of(text.cbegin(), text.cend(),
                                         [this](QChar ch) { return ch == u' ' || m_box->Takes(ch); });
        return allowed ? Acceptable : Invalid;
    }

private:
    const InputBox* m_box;
};

/// Boxes allowing input are green, with black text on any desktop.
QPalette GreenBox(QPalette palette)
{
    const QColor green(0x80, 0xFF, 0x80);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Base, green);
        palette.setColor(group, QPalette::Text, Qt::black);
        palette.setColor(group, QPalette::PlaceholderText, QColor(0, 0, 0, 0x80));
    }
    return palette;
}

} // namespace

InputBox::InputBox(QWidget* parent) : QLineEdit(parent)
{
    setPalette(GreenBox(palette()));
    auto* validator = new CharacterValidator(this);
    validator->setParent(this);
    setValidator(validator);
    connect(this, &QLineEdit::inputRejected, this, &InputBox::Refuse);
    setContextMenuPolicy(Qt::NoContextMenu); // it would offer to paste
}

void InputBox::Follow(LGLOBAL& shared, InputRules rules)
{
    m_shared = &shared;
    // However the user changes the text (cutting, erasing a word, undoing), it is edited.
    connect(this, &QLineEdit::textEdited, this, [this] { m_shared->entryEdited = 1; });
    m_rules = std::move(rules);
    if (m_rules.keys == InputRules::Keys::Digits) {
        setInputMethodHints(Qt::ImhDigitsOnly);
    }
}

int InputBox::Filter(int key) const
{
    switch (m_rules.keys) {
    case InputRules::Keys::Digits:
        return FilterDigitKey(key);
    case InputRules::Keys::Decimal:
        return FilterDecimalKey(key, m_shared != nullptr ? QStringView(m_shared->currentEntryText)
                                                         : QStringView());
    case InputRules::Keys::Date:
        return FilterDateKey(key);
    case InputRules::Keys::FileText:
        return FilterFileTextKey(key);
    case InputRules::Keys::QuotedText:
        return FilterQuotedTextKey(key);
    }
    return 0;
}

bool InputBox::Takes(QChar character) const
{
    const int key = character.unicode();
    if (character.category() == QChar::Other_Control) {
        return false; // Backspace is a key, not a character of a text
    }
    switch (m_rules.keys) {
    case InputRules::Keys::Decimal: // without the text typed so far
        return FilterDecimalKey(key, {}) != 0;
    default:
        return Filter(key) != 0;
    }
}

void InputBox::BeginEdit()
{
    if (std::exchange(m_shared->entryEdited, qint16{1}) == 0 &&
        m_rules.click == InputRules::Click::EmptiesBox) {
        clear(); // what is typed first replaces the old value
    }
}

void InputBox::Refuse()
{
    QApplication::beep();
    Q_EMIT KeyRefused();
}

bool InputBox::MovesWithinWindow(Qt::FocusReason reason)
{
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
           reason != Qt::MenuBarFocusReason;
}

void InputBox::keyPressEvent(QKeyEvent* event)
{
    if (m_shared == nullptr) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (m_rules.enter) {
            m_rules.enter();
        } else if (QWidget* next = m_rules.next ? m_rules.next() : nullptr) {
            next->setFocus(Qt::TabFocusReason);
        }
        return;
    }
    if (event->matches(QKeySequence::Paste)) {
        Refuse();
        return;
    }
    const QString typed = event->text();
    const int key = typed.isEmpty() ? 0 : typed.front().unicode();
    const bool erases = key == kBackspaceKey || key == kDeleteKey;
    const Qt::KeyboardModifiers held = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const bool command =
        held == Qt::ControlModifier || held == Qt::AltModifier; // both together type, as AltGr
    if (key == 0 || command || (key < ' ' && !erases)) {        // arrows, Tab, Escape, copying
        QLineEdit::keyPressEvent(event);
        return;
    }
    m_shared->currentEntryText = text();
    if (Filter(key) == 0) {
        Refuse();
        return;
    }
    BeginEdit();
    QLineEdit::keyPressEvent(event);
}

void InputBox::inputMethodEvent(QInputMethodEvent* event)
{
    const QString composed = event->commitString();
    if (m_shared == nullptr || composed.isEmpty()) {
        QLineEdit::inputMethodEvent(event);
        return;
    }
    if (!std::all_of(composed.cbegin(), composed.cend(), [this](QChar ch) { return Takes(ch); })) {
        Refuse();
        // The line itself would take blanks. It only learns what is still being composed.
        QInputMethodEvent rest(event->preeditString(), event->attributes());
        QLineEdit::inputMethodEvent(&rest);
        return;
    }
    BeginEdit();
    QLineEdit::inputMethodEvent(event);
}

void InputBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton) {
        return; // it would paste what is marked elsewhere
    }
    QLineEdit::mouseReleaseEvent(event);
    if (m_shared == nullptr || event->button() != Qt::LeftButton ||
        !rect().contains(event->position().toPoint())) {
        return;
    }
    if (m_rules.click == InputRules::Click::EmptiesBox) {
        m_shared->entryEdited = 1;
        clear();
    } else {
        const bool first = std::exchange(m_selectOnRelease, false) && !hasSelectedText();
        if (first || m_rules.click == InputRules::Click::SelectsTextEachTime) {
            selectAll();
        }
    }
}

void InputBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (m_shared == nullptr) {
        return;
    }
    // A dialog that opens gives its first box the focus before its window is the active one.
    const bool entered = std::exchange(m_entered, true);
    if (entered && !MovesWithinWindow(event->reason())) {
        return;
    }
    QApplication::clipboard()->clear(); // so that nothing can be pasted into the box
    if (!MovesWithinWindow(event->reason())) {
        return;
    }
    if (m_rules.click != InputRules::Click::EmptiesBox) {
        selectAll();
        m_selectOnRelease = event->reason() == Qt::MouseFocusReason;
    }
}

void InputBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (m_shared == nullptr || !MovesWithinWindow(event->reason())) {
        return;
    }
    m_entered = false;
    const bool edited = std::exchange(m_shared->entryEdited, qint16{0}) != 0;
    const std::optional<Message> due = m_rules.leave ? m_rules.leave(*this, edited) : std::nullopt;
    QApplication::clipboard()->clear();
    if (due) {
        Q_EMIT MessageDue(*due);
    }
}

void InputBox::hideEvent(QHideEvent* event)
{
    QLineEdit::hideEvent(event);
    if (!event->spontaneous()) {
        m_entered = false;
    }
    // A dialog closes over the box the user typed in: the mark is not the next box's.
    if (m_shared != nullptr && !event->spontaneous() && window()->focusWidget() == this) {
        m_shared->entryEdited = 0;
    }
}

void InputBox::dragEnterEvent(QDragEnterEvent* event)
{
    event->ignore(); // numbers are typed: a dropped text would pass by the keys' rules
}

LeaveRule NumberFromTo(int low, int high, const Message& message, const QString& picture,
                       std::function<double()> fallback)
{
    return [=, fallback = std::move(fallback)](InputBox& box, bool edited) -> std::optional<Message> {
        const auto write = [&](double value) {
            box.setText(RightJustify(Format(value, picture), static_cast<int>(picture.size())));
        };
        const double value = Val(box.text());
        if (value < low || value > high) {
            write(fallback());
            return message;
        }
        if (edited) {
            write(value);
        }
        return std::nullopt;
    };
}
