#pragma once

#include <QTableView>

/// A grid into which the user types directly: the keys go to the current cell, which has a dotted line around
/// it, and no editor opens. What the keys do there is for others to say.
class StatementView : public QTableView
{
    Q_OBJECT

public:
    explicit StatementView(QWidget* parent = nullptr);

    /// Sounds the beep for a key that was refused.
    void Refuse();

    /// Makes a column wide enough for a usual text, its heading, and the texts that can be seen.
    void WidenColumn(int column, const QString& usual);

Q_SIGNALS:
    /// Characters were typed, by a key or through an input method.
    void Typed(const QString& text);
    void BackspacePressed();
    void EnterPressed();
    /// A key was refused, with a beep.
    void KeyRefused();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
};
