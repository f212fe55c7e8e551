#pragma once

#include "app/DialogPrompts.h"
#include "app/MDIContainer.h"
#include "app/Recovery.h"
#include "tests/soak/SoakFiles.h"

#include <QElapsedTimer>
#include <QPointer>

#include <functional>
#include <map>
#include <random>

class QAbstractItemView;

/// Takes down what is done. @param what  for the reader of a failure
using SoakLog = std::function<void(const QString& what)>;

/// The random decisions of a soak.
class SoakDice
{
public:
    explicit SoakDice(quint64 seed) : m_engine(seed) {}

    /// 0 .. below - 1
    int Below(int below) { return static_cast<int>(m_engine() % static_cast<quint64>(below)); }
    bool OneIn(int chances) { return Below(chances) == 0; }

private:
    std::mt19937_64 m_engine;
};

/// The program's own dialogs, but files are chosen at random and nothing reaches a printer.
class SoakPrompts : public DialogPrompts
{
public:
    SoakPrompts(LGLOBAL& shared, SoakDice& dice, const SoakFiles& files, SoakLog log);

    void FileDirectory() override;

private:
    [[nodiscard]] QString RandomFile();

    LGLOBAL& m_state;
    SoakDice& m_dice;
    const SoakFiles& m_files;
    SoakLog m_log;
};

/// One run of the program, from its start to its end, used at random: every form, every button, box, grid and
/// dialog. After each action everything that must always hold is checked.
class SoakSession : public QObject
{
    Q_OBJECT

public:
    struct Setting {
        SoakDice& dice;
        const SoakFiles& files;
        QString programFolder;
        QString recoveryFolder;
        SoakLog log;
        std::function<void(const QString& what)> fail; ///< does not return
    };

    explicit SoakSession(const Setting& setting);
    ~SoakSession() override;

    /// Runs until so many actions are done or the program ended itself.
    /// @return how many were done.
    int Run(int actions);

    /// How often an action found each form in front.
    [[nodiscard]] const std::map<QString, int>& Visits() const { return m_visits; }

private:
    void Act();
    void ActInDialog(QWidget& dialog);
    void Close(QWidget& dialog);
    void ActInWindow();
    void ActIn(QWidget& window);
    bool HeadForGoal(WorkingForm& form);
    bool ActWhole(WorkingForm& form);
    void TypeDraw(WorkingForm& form);
    void TypeRow(WorkingForm& form);
    void Use(QWidget& widget);
    void UseGrid(QAbstractItemView& view);
    void TypeSomething(QWidget& widget);
    void PressKey(QWidget& widget);
    void Check();
    void CheckDatabase();
    void CheckWindow();
    void Expect(bool holds, const QString& what);

    /// The form or dialog that one run of the program is drawn to.
    struct Goal {
        QString form;
        QString menuButton; ///< leads there, or to the form before it
    };
    [[nodiscard]] static Goal RandomGoal(SoakDice& dice);

    Setting m_setting;
    SoakDice& m_dice;
    Goal m_goal;
    LGLOBAL m_shared;
    SoakPrompts m_prompts;
    MDIContainer m_window;
    Recovery m_recovery;
    int m_toDo = 0;
    int m_done = 0;
    int m_depth = 0; ///< actions that are under way: one opens a dialog, the next answers it
    QPointer<QWidget> m_dialog;
    int m_inDialog = 0; ///< actions in the dialog so far
    QPointer<QWidget> m_closing;
    QElapsedTimer m_closingSince;
    QElapsedTimer m_busy; ///< since the busy pointer came
    std::map<QString, int> m_visits;
};
