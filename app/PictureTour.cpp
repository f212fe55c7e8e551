#include "app/PictureTour.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace {

/// Saves pictures until the first that cannot be saved.
class Album
{
public:
    explicit Album(const QString& folder) : m_folder(folder) {}

    void Add(QWidget& widget, const QString& name, qreal density = 1)
    {
        QCoreApplication::processEvents();
        QPixmap picture(widget.size() * density);
        picture.setDevicePixelRatio(density);
        widget.render(&picture);
        const QString path = m_folder.filePath(name + u".png"_s);
        if (m_outcome.ok && !picture.save(path)) {
            m_outcome = Outcome::Failure(u"The picture \"%1\" cannot be saved."_s.arg(path));
        }
    }

    [[nodiscard]] const Outcome& Result() const { return m_outcome; }

private:
    QDir m_folder;
    Outcome m_outcome;
};

/// As it is, at twice the density, and in a dark palette.
void TakeThree(Album& album, QWidget& widget, const QString& name)
{
    album.Add(widget, name);
    album.Add(widget, name + u"-double"_s, 2);
    const QPalette light = QApplication::palette();
    QApplication::setPalette(DarkPalette());
    album.Add(widget, name + u"-dark"_s);
    QApplication::setPalette(light);
}

void ClickIn(const QWidget& window, const QString& name)
{
    if (name.isEmpty()) {
        return; // findChild would take it for any button
    }
    if (auto* button = window.findChild<QAbstractButton*>(name)) {
        button->click();
    }
}

/// A form in the four ways a user may see it.
void AddStop(Album& album, MDIContainer& window, QSize opening, const TourStop& stop)
{
    constexpr QSize kLarge(1280, 800);
    const auto arrange = [&window, &stop] {
        window.ShowForm(stop.form);
        if (stop.fill && window.ActiveForm() != nullptr) {
            stop.fill(*window.ActiveForm());
        }
        QCoreApplication::processEvents();
        ClickIn(window, stop.button);
    };
    window.resize(opening);
    arrange();
    TakeThree(album, window, stop.name);
    window.resize(kLarge);
    arrange();
    album.Add(window, stop.name + u"-1280x800"_s);
    window.resize(opening);
}

void AddDialog(Album& album, const TourDialog& stop)
{
    const std::unique_ptr<QDialog> dialog = stop.make();
    dialog->show();
    QCoreApplication::processEvents();
    ClickIn(*dialog, stop.button);
    TakeThree(album, *dialog, stop.name);
    if (stop.savesWhenLeft) {
        dialog->done(QDialog::Rejected);
    } else {
        dialog->reject();
    }
}

} // namespace

QPalette DarkPalette()
{
    QPalette palette(QColor(0x4A, 0x4D, 0x52), QColor(0x35, 0x37, 0x3B));
    palette.setColor(QPalette::Base, QColor(0x26, 0x28, 0x2B));
    palette.setColor(QPalette::AlternateBase, QColor(0x2D, 0x2F, 0x33));
    palette.setColor(QPalette::Highlight, QColor(0x2A, 0x6F, 0xB5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

Outcome TakePictures(MDIContainer& window, const Tour& tour, const QString& folder)
{
    if (!QDir().mkpath(folder)) {
        return Outcome::Failure(u"The folder \"%1\" cannot be made."_s.arg(folder));
    }
    Album album(folder);
    const QSize opening = window.size();
    for (const TourStop& stop : tour.stops) {
        AddStop(album, window, opening, stop);
    }
    for (const TourDialog& dialog : tour.dialogs) {
        AddDialog(album, dialog);
    }
    return album.Result();
}
