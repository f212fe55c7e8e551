#pragma once

#include "app/LGLOBAL.h"
#include "app/Prompts.h"

#include <QLineEdit>

#include <functional>
#include <optional>

class InputBox;

/// What a box does when the focus leaves it: puts its text right and says which message is due, if any.
/// @param edited  the user clicked into the box or typed in it since it got the focus
using LeaveRule = std::function<std::optional<Message>(InputBox& box, bool edited)>;

/// How one input box differs from the others.
struct InputRules {
    enum class Keys { Digits, Decimal, Date, FileText, QuotedText };
    enum class Click {
        EmptiesBox,          ///< the common pattern: a click empties, the first key replaces
        SelectsText,         ///< the focus selects the text, so that a mere click loses nothing
        SelectsTextEachTime, ///< every click does, too
    };
    Keys keys = Keys::Digits;
    Click click = Click::EmptiesBox;
    std::function<QWidget*()> next{}; ///< where Enter leads; nowhere when empty
    std::function<void()> enter{};    ///< what Enter does, where it leads to no other box
    LeaveRule leave{};                ///< nothing to check when empty
};

/// One of the green boxes that the user types into.
///
/// All boxes share the mark entryEdited: a click or the first key sets it, leaving the box clears it. Only
/// the keys of the box's rule are taken, others beep; what an input method composes is taken only if every
/// character would be. Nothing can be pasted or dropped into a box, and the clipboard is emptied when a box
/// gets or loses the focus.
class InputBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit InputBox(QWidget* parent = nullptr);

    /// Gives the box its rules; until then it is an ordinary line of text.
    void Follow(LGLOBAL& shared, InputRules rules);

    /// True when the box takes the character in an empty text.
    [[nodiscard]] bool Takes(QChar character) const;

Q_SIGNALS:
    /// The box was left and its message is due; its text has been put right already.
    void MessageDue(const Message& message);
    /// A key, or a pasted or composed text, was refused, with a beep.
    void KeyRefused();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;

private:
    void BeginEdit();
    void Refuse();
    [[nodiscard]] int Filter(int key) const;
    /// True when the focus comes from or goes to another place of the same window.
    [[nodiscard]] static bool MovesWithinWindow(Qt::FocusReason reason);

    LGLOBAL* m_shared = nullptr;
    InputRules m_rules;
    bool m_selectOnRelease = false;
    bool m_entered = false; ///< has the focus, be its window active or not
};

/// A number from @p low to @p high: outside, @p message is due and the box shows @p fallback; inside, an
/// edited text is rewritten. Either way it is formatted under @p picture and right-justified in its width.
[[nodiscard]] LeaveRule NumberFromTo(int low, int high, const Message& message, const QString& picture,
                                     std::function<double()> fallback);
