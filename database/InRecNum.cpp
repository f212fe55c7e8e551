#include "database/InRecNum.h"

#include "app/DialogPlacement.h"
#include "app/KeyFilters.h"
#include "app/TextPictures.h"
#include "app/Twips.h"
#include "ui_InRecNum.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

QString InsertWord()
{
    return u"Insert "_s;
}

QString SortWord()
{
    return u" Sort  "_s;
}

} // namespace

InRecNum::InRecNum(LGLOBAL& shared, QWidget* mainWindow)
    : QDialog(mainWindow), m_shared(shared), m_ui(std::make_unique<Ui::InRecNum>())
{
    m_ui->setupUi(this);
    // The line breaks at its blanks in the middle, and has room for two lines under any option.
    const QFontMetrics metrics(font());
    m_ui->Label1->setFixedWidth(metrics.horizontalAdvance(u" Type in the record number       "_s));
    m_ui->Label1->setMinimumHeight(2 * (std::max(metrics.height(), metrics.lineSpacing()) + 1));

    InputRules number;
    number.enter = [this] { m_ui->Accept->click(); };
    m_ui->CurVal->Follow(m_shared, number);

    CorInsDel = {m_ui->CorInsDel0, m_ui->CorInsDel1, m_ui->CorInsDel2, m_ui->CorInsDel3};
    for (std::size_t i = 0; i < CorInsDel.size(); ++i) {
        QRadioButton* option = CorInsDel.at(i);
        option->installEventFilter(this);
        option->setFocusPolicy(Qt::ClickFocus);
        connect(option, &QRadioButton::toggled, this, [this, option, i](bool chosen) {
            // The Tab key leads to the chosen option from either side.
            option->setFocusPolicy(chosen ? Qt::StrongFocus : Qt::ClickFocus);
            if (chosen) {
                Choose(static_cast<EditMode>(i + 1));
            }
        });
        connect(option, &QRadioButton::clicked, this,
                [this, i] { Choose(static_cast<EditMode>(i + 1)); }); // also when it was chosen already
    }
    connect(m_ui->Accept, &QPushButton::clicked, this, &InRecNum::AcceptChoice);
    connect(m_ui->NoAccept, &QPushButton::clicked, this, &InRecNum::reject);
    CorInsDel.front()->setChecked(true);
}

InRecNum::~InRecNum() = default;

void InRecNum::Choose(EditMode mode)
{
    m_shared.editMode = mode;
    const bool wantsRecord = mode == EditMode::Correct || mode == EditMode::Delete;
    switch (mode) {
    case EditMode::Insert:
        m_ui->Label1->setText(u" Automatic insertion by date."_s);
        m_ui->CurVal->setText(InsertWord());
        break;
    case EditMode::Sort:
        m_ui->Label1->setText(u" Sorts all the records by date."_s);
        m_ui->CurVal->setText(SortWord());
        break;
    default:
        m_ui->Label1->setText(mode == EditMode::Correct ? u" Type in the record number        to correct."_s
                                                        : u" Type in the record number        to delete."_s);
        m_ui->CurVal->setText(m_shared.ClickedRecord > 0 ? QString::number(m_shared.ClickedRecord)
                                                         : QString());
        break;
    }
    m_ui->CurVal->setEnabled(wantsRecord);
}

void InRecNum::AcceptChoice()
{
    const QString text = m_ui->CurVal->text();
    switch (m_shared.editMode) {
    case EditMode::Insert:
        m_shared.SelectedRecord = text == InsertWord() ? 1 : 0;
        break;
    case EditMode::Sort:
        m_shared.SelectedRecord = text == SortWord() ? 1 : 0;
        break;
    default: // a number beyond all tables is one that does not exist
        m_shared.SelectedRecord = ToInt16(Val(text)).value_or(std::numeric_limits<qint16>::max());
        break;
    }
    if (m_shared.SelectedRecord == 0) {
        m_shared.editMode = EditMode::Normal;
    }
    m_shared.ClickedRecord = 0;
    accept();
}

void InRecNum::reject()
{
    m_shared.editMode = EditMode::Normal;
    m_shared.SelectedRecord = 0;
    m_shared.ClickedRecord = 0;
    QDialog::reject();
}

bool InRecNum::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) {
        return QDialog::eventFilter(watched, event);
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
        QWidget* next = m_ui->CurVal;
        if (!next->isEnabled()) {
            next = m_ui->Accept; // no number to type
        }
        next->setFocus(Qt::TabFocusReason);
        return true;
    }
    const QString typed = key->text();
    const bool isCommand = (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
    const bool isCharacter = !typed.isEmpty() && typed.front() > u' ' && !isCommand;
    if (isCharacter && FilterDigitKey(typed.front().unicode()) == 0) {
        QApplication::beep();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void InRecNum::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    // This dialog goes by the width of the main window, unlike the others.
    const QWidget* mainWindow = parentWidget();
    const int width =
        mainWindow == nullptr ? 0 : PixelsToTwips(mainWindow->width(), mainWindow->logicalDpiX());
    PlaceDialog(*this, mainWindow, width, {{6800, 1530}, {8100, 2600}});
    m_ui->CurVal->setFocus(Qt::TabFocusReason);
}
