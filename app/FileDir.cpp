#include "app/FileDir.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

using namespace Qt::StringLiterals;

QString FileDir::Filter(qint16 mode)
{
    switch (mode) {
    case kOpenInvestmentFile:
        return u"Investment Database (*.inv)"_s;
    case kSaveInvestmentFile: // the doubled word is the program's own
        return u"Investment Database Database (*.inv)"_s;
    case kSavePdfFile:
        return u"PDF (*.pdf)"_s;
    default:
        return u"Lottery Database (*.Lto)"_s;
    }
}

QString FileDir::ProposedName(const LGLOBAL& shared)
{
    if (shared.fileDialogMode == kSavePdfFile) {
        return shared.pdfFileName;
    }
    const bool investment =
        shared.fileDialogMode == kOpenInvestmentFile || shared.fileDialogMode == kSaveInvestmentFile;
    return investment ? shared.investmentFileName : shared.database.fileName;
}

void FileDir::FileDirectory()
{
    const bool opens = m_shared.fileDialogMode % 2 == 1;
    // Where printouts go says nothing about where lotteries are kept.
    QString& lastFolder =
        m_shared.fileDialogMode == kSavePdfFile ? m_shared.pdfFolder : m_shared.dialogFolder;
    const QString folder = lastFolder.isEmpty() ? QDir::currentPath() : lastFolder;
    QFileDialog dialog(m_mainWindow, u"Folders"_s, folder, Filter(m_shared.fileDialogMode));
    dialog.setObjectName(u"CMDialog1"_s);
    dialog.setAcceptMode(opens ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(opens ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.selectNameFilter(Filter(m_shared.fileDialogMode));
    if (m_shared.fileDialogMode == kSavePdfFile) {
        dialog.setWindowTitle(u"Print to a PDF File"_s);
        dialog.setDefaultSuffix(u"pdf"_s); // other files keep the name as it is typed
    }
    if (const QString name = ProposedName(m_shared); !name.isEmpty()) {
        dialog.selectFile(name);
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        m_shared.fileDialogMode = kFileDialogCancelled;
        return;
    }
    m_shared.chosenPath = dialog.selectedFiles().constFirst();
    lastFolder = QFileInfo(m_shared.chosenPath).absolutePath();
}
