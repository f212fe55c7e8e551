#pragma once

#include "app/AppSettings.h"
#include "app/DrawDatabase.h"
#include "app/EditMode.h"
#include "app/HcdList.h"
#include "app/InvestmentStatement.h"
#include "app/RandomSource.h"
#include "app/SetTable.h"
#include "database/NumberStatistics.h"

#include <QDate>
#include <QLocale>
#include <QString>

#include <array>
#include <functional>
#include <memory>
#include <vector>

/// What the file dialog is asked for, and what it answers when the user cancels.
enum FileDialogMode : qint16 {
    kFileDialogIdle = 0,
    kOpenLotteryFile = 1,
    kSaveLotteryFile = 2,
    kOpenInvestmentFile = 3,
    kSaveInvestmentFile = 4,
    kSavePdfFile = 6,
    kFileDialogCancelled = 9,
};

/// What the disk is known to hold of a piece of work: whatever else is in memory is not saved, whether or not
/// a question will be asked about it.
struct WorkOnDisk {
    QString folder{};        ///< of the file last opened or saved; "" for none
    quint64 fingerprint = 0; ///< of what was opened or saved then, see app/WorkFingerprint.h
};

/// Who has opened the graph, and gets the window back from it.
enum GraphCaller : qint16 { kGraphFromMenu = 1, kGraphFromEditor = 2 };

/// The one state that all forms share. main.cpp makes it, every form gets it by reference; tests make their
/// own.
struct LGLOBAL {
    DrawDatabase database;
    AppSettings settings;

    // Messages, questions and input boxes
    qint16 messageNumber = 0; ///< the message that AMsgbox shows next
    QString messageArg1;
    QString messageArg2;
    QString messageReason;     ///< a sentence shown below the message's own text, e.g. the system's reason
    qint16 questionNumber = 0; ///< in: the question of AllYesNo; out: kAnsweredYes, or 0 for No
    qint16 entryEdited = 0;    ///< 1 once the user clicked into or typed in the input box that has the focus
    QString currentEntryText;  ///< text of the money box that has the focus

    // Files
    qint16 fileDialogMode = kFileDialogIdle;
    QString chosenPath;    ///< full path picked in the file dialog; "" when idle
    QString programFolder; ///< of "Personal.Lot", "Sample.Lto", "Sample.inv", "Extract.lto"
    QString dialogFolder;  ///< folder the next file dialog opens in: that of the database or statement last
                           ///< opened, or chosen to save to; "" for the current folder
    /// Called just before the opening of a file, which asks no question, replaces the open database or
    /// empties it: recovery sets aside then what is not saved. Empty where nobody does.
    std::function<void()> beforeDatabaseGoes;
    WorkOnDisk databaseOnDisk;
    WorkOnDisk statementOnDisk;
    QString pdfFolder;          ///< folder a PDF file was last saved in; "" for the current folder
    QString pdfFileName;        ///< name that is proposed for a PDF file
    QString investmentFileName; ///< of the statement last opened or saved; "" once the tracker is left
    QString databasePath;       ///< full path of the database file last opened or saved; see DatabaseFilePath
    QString statementPath;      ///< full path of the statement last opened or saved
    QString recentFilesList;    ///< file that keeps the list of the files last opened or saved; "" keeps none

    // Places and pages
    qint32 layoutSize = 6810; ///< 8670 when the main window is taller than 8,500 twips, else 6810
    qint16 linesPerPage = 53; ///< 53, or 56 while the 11-point printer font is chosen
    qint16 graphCaller = 0;   ///< a GraphCaller; 0 before the first graph
    float extractLow = 0;     ///< record-number bounds of the extract
    float extractHigh = 0;

    // Number statistics
    CountMode WhichCnt = CountMode::TimesDrawn;
    qint16 sortMode = 0;       ///< kNumberOrder leaves the sorted table in number order
    NumberTable NumberStats{}; ///< unsorted: row n is number n
    NumberTable sortedNumberStats{};
    std::array<QString, 4>
        topNumbersText;                 ///< line 1 the heading of the top numbers, line 2 the numbers alone
    std::array<QString, 4> scratchText; ///< four more lines, free for any form

    /// The scratch copy of the records: as many rows as a form gave it, row 0 not used. The winner check
    /// keeps what it found here until its next search.
    std::vector<DrawRecord> scratchRecords;

    // Generated sets
    SetTable PickTable{};
    CandidateList CandidateNumbers;
    /// One for the whole run; tests put in their own. Never empty.
    std::shared_ptr<RandomSource> random = std::make_shared<RandomGenerator>();

    // Hot, cold and due numbers
    qint16 gameSets = 0;               ///< sets to make of them, 0..10
    HcdList graphMode = HcdList::None; ///< the list that is ranked and drawn next
    qint16 hcdPicksMade = 0;           ///< 1 when the form of these numbers has made sets

    // The editor and its record dialog
    EditMode editMode = EditMode::Normal;
    qint16 SelectedRecord = 0; ///< record chosen in the record dialog, 0 = none
    qint16 ClickedRecord = 0;  ///< record of the grid row last clicked, 0 = none

    // The investment statement
    InvestmentTable InvestmentRows; ///< as typed so far, or as loaded; empty while the tracker is not open
    float InvestmentRowCount = 0;   ///< in use after the last calculation; as a loaded file says
    Currency InvestmentTotal;       ///< of the rows that were counted then
    QString insertRowText;          ///< the row number typed into InInvNum; "" after a cancel

    // What the world outside says
    QLocale locale;                                     ///< of dates on screen and paper
    std::function<QDate()> today = &QDate::currentDate; ///< tests set their own day
};

/// What questionNumber holds after Yes.
inline constexpr qint16 kAnsweredYes = 6;

/// Working forms take their large placement when layoutSize is not below this.
inline constexpr qint32 kLargeLayoutFrom = 8501;
