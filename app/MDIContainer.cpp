#include "app/MDIContainer.h"

#include "app/FileDrop.h"
#include "app/FileNames.h"
#include "app/Twips.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFileInfo>
#include <QLayout>
#include <QResizeEvent>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kWidthInTwips = 9615;
constexpr int kHeightInTwips = 6870;
constexpr int kLargeFromTwips = 8500;
constexpr qint32 kSmallLayout = 6810;
constexpr qint32 kLargeLayout = 8670;

/// What a form needs so that nothing of it is clipped, at the width it has.
QSize LeastSize(const QWidget& form)
{
    QSize least = form.minimumSizeHint();
    const QLayout* layout = form.layout();
    if (layout != nullptr && layout->hasHeightForWidth() && layout->totalMinimumSize() == least) {
        const int width =
            std::max(least.width(), form.width()); // texts over several lines need less when wider
        least.setHeight(std::max(least.height(), layout->totalMinimumHeightForWidth(width)));
    }
    return least;
}

QString NameOf(FormName name)
{
    switch (name) {
    case FormName::Lottery:
        return u"'Selectorium'"_s;
    case FormName::LCheckWin:
        return u"'Check Winners'"_s;
    case FormName::Extract:
        return u"'Extract between two Dates'"_s;
    case FormName::LInvTrack:
        return u"'Investment Tracker'"_s;
    case FormName::ChangeFnt:
        return u"'Personalize Settings'"_s;
    default:
        return u"This form"_s;
    }
}

} // namespace

MDIContainer::MDIContainer(LGLOBAL& shared, Prompts& prompts, const QString& programFolder)
    : m_shared(shared), m_prompts(prompts), m_stage(new QWidget(this)),
      m_menu(new LotoMenu(shared, prompts, *this, programFolder, m_stage))
{
    setObjectName(u"MDIContainer"_s);
    m_stage->setObjectName(u"Stage"_s);
    m_stage->setBackgroundRole(QPalette::Mid); // in the large layout it frames the form
    m_stage->setAutoFillBackground(true);
    m_stage->installEventFilter(this);
    m_menu->hide();
    connect(m_menu, &LotoMenu::RecentFileChosen, this, &MDIContainer::OpenNamedFile);
    setCentralWidget(m_stage);
    new FileDrop(
        *this, [this] { return m_active; }, [this](const QString& path) { OpenDroppedFile(path); });
}

void MDIContainer::AddForm(FormName name, FormMaker maker)
{
    m_makers[name] = std::move(maker);
}

void MDIContainer::AddDialog(FormName name, DialogRunner runner)
{
    m_dialogs[name] = std::move(runner);
}

void MDIContainer::Start()
{
    m_menu->Load();
    move(0, 0);
    resize(TwipsToPixels(kWidthInTwips, logicalDpiX()), TwipsToPixels(kHeightInTwips, logicalDpiY()));
    BringToFront(m_menu);
}

WorkingForm* MDIContainer::FindForm(FormName name)
{
    if (const auto made = m_forms.find(name); made != m_forms.end()) {
        return made->second;
    }
    const auto maker = m_makers.find(name);
    if (maker == m_makers.end()) {
        return nullptr;
    }
    WorkingForm* form = maker->second(*this, m_stage);
    form->hide();
    m_forms[name] = form;
    return form;
}

void MDIContainer::ShowForm(FormName name)
{
    if (name == FormName::LotoMenu) {
        m_menu->ShowFileInMemory();
        BringToFront(m_menu);
        return;
    }
    WorkingForm* form = FindForm(name);
    if (form == nullptr) {
        TellComesLater(NameOf(name));
        return;
    }
    HideForm();
    form->Load();
    BringToFront(form);
}

bool MDIContainer::RunDialog(FormName name)
{
    const auto runner = m_dialogs.find(name);
    if (runner == m_dialogs.end()) {
        TellComesLater(NameOf(name));
        return false;
    }
    HideForm();
    runner->second(*this, this);
    return true;
}

void MDIContainer::OpenNamedFile(const QString& path)
{
    if (IsStatementFileName(path)) {
        ShowForm(FormName::LInvTrack);
        m_active->OpenNamedFile(path);
    } else {
        m_menu->OpenNamedFile(path);
    }
}

void MDIContainer::OpenHandedFile(const QString& path)
{
    if (m_active != nullptr && m_active->OpensDropped(path)) {
        OpenDroppedFile(path);
    } else {
        m_prompts.Notice(
            u"\"%1\" is not opened yet: go back to the menu first."_s.arg(QFileInfo(path).fileName()));
    }
}

void MDIContainer::OpenDroppedFile(const QString& path)
{
    if (m_active == m_menu) {
        OpenNamedFile(path);
    } else {
        m_active->OpenNamedFile(path); // it has said that it takes it
    }
}

void MDIContainer::HideForm()
{
    if (m_active != nullptr) {
        m_active->hide();
        m_active = nullptr;
    }
}

void MDIContainer::BringToFront(WorkingForm* form)
{
    if (m_active != form) {
        HideForm();
    }
    m_active = form;
    GrowFor(*form);
    MoveForm(form, form->FrontPlace());
    form->show();
    form->raise();
    // What a text over several lines needs shows only when it has its width, and another width changes it
    // again.
    constexpr int kRounds = 3;
    for (int i = 0; i < kRounds; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        GrowFor(*form);
        MoveForm(form, form->FrontPlace());
    }
    FileChanged();
    if (form->focusWidget() != nullptr) {
        form->focusWidget()->setFocus();
    } else {
        form->setFocus();
    }
}

void MDIContainer::GrowFor(const WorkingForm& form)
{
    // A desktop with a large font needs more room than the 9,615 by 6,870 twips; nothing may be clipped.
    QSize needed = LeastSize(form);
    if (PixelsToTwips(needed.height(), logicalDpiY()) > kLargeFromTwips) {
        const QPoint corner = InPixels(WorkingForm::ResizedPlace(kLargeLayout));
        needed += QSize(corner.x(), corner.y());
    }
    setMinimumSize(minimumSize().expandedTo(needed));
}

void MDIContainer::MoveForm(WorkingForm* form, QPoint twips)
{
    // The same distance on the far sides, as long as the form does not need that room.
    const QPoint corner = InPixels(twips);
    const QSize distance(corner.x(), corner.y());
    const QSize room = m_stage->size() - distance;
    form->setGeometry(QRect(corner, (room - distance).expandedTo(LeastSize(*form).boundedTo(room))));
}

QPoint MDIContainer::InPixels(QPoint twips) const
{
    return {TwipsToPixels(twips.x(), logicalDpiX()), TwipsToPixels(twips.y(), logicalDpiY())};
}

void MDIContainer::StageResized()
{
    m_shared.layoutSize =
        PixelsToTwips(height(), logicalDpiY()) > kLargeFromTwips ? kLargeLayout : kSmallLayout;
    if (m_active != nullptr) {
        MoveForm(m_active, WorkingForm::ResizedPlace(m_shared.layoutSize));
    }
}

bool MDIContainer::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_stage && event->type() == QEvent::Resize) {
        StageResized();
    }
    return QMainWindow::eventFilter(watched, event);
}

void MDIContainer::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (m_active != nullptr) { // now that the stage has its size
        MoveForm(m_active, m_active->FrontPlace());
    }
}

void MDIContainer::closeEvent(QCloseEvent* event)
{
    const bool formAgrees = m_active == nullptr || m_active->MayClose();
    event->setAccepted(formAgrees && MayEndProgram(m_shared, m_prompts));
}

void MDIContainer::ShowHelp()
{
    if (m_openHelp) {
        m_openHelp();
    } else {
        TellComesLater(u"'How to Use the Program'"_s);
    }
}

void MDIContainer::TellComesLater(const QString& what)
{
    m_prompts.SetBusyPointer(false);
    m_prompts.Notice(what + u" is not part of this version yet. It comes with a later one."_s);
}

void MDIContainer::SetCaption(const QString& caption)
{
    setWindowTitle(caption);
}

void MDIContainer::FileChanged()
{
    // The title stays what the form has set: a desktop shows the file in its own place, if it has one.
    setWindowFilePath(m_active == nullptr ? QString() : m_active->FilePath());
}

void MDIContainer::EndProgram()
{
    QCoreApplication::exit(0);
}
