#include "app/PictureTour.h"

#include "app/AMsgbox.h"
#include "app/AllYesNo.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QPixmap>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

QPalette DarkPalette()
{
    QPalette palette(QColor(0x4A, 0x4D, 0x52), QColor(0x35, 0x37, 0x3B));
    palette.setColor(QPalette::Base, QColor(0x26, 0x28, 0x2B));
    palette.setColor(QPalette::AlternateBase, QColor(0x2D, 0x2F, 0x33));
    palette.setColor(QPalette::Highlight, QColor(0x2A, 0x6F, 0xB5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

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

/// Each picture in the four ways a user may see it.
void TakeAll(Album& album, MDIContainer& window, QSize opening, const std::function<void()>& arrange,
             const QString& name)
{
    constexpr QSize kLarge(1280, 800);
    window.resize(opening);
    arrange();
    album.Add(window, name);
    album.Add(window, name + u"-double"_s, 2);

    const QPalette light = QApplication::palette();
    QApplication::setPalette(DarkPalette());
    album.Add(window, name + u"-dark"_s);
    QApplication::setPalette(light);

    window.resize(kLarge);
    arrange();
    album.Add(window, name + u"-1280x800"_s);
    window.resize(opening);
}

void ShowStop(MDIContainer& window, const TourStop& stop)
{
    window.ShowForm(stop.form);
    QCoreApplication::processEvents();
    if (auto* button = window.findChild<QAbstractButton*>(stop.button)) {
        button->click();
    }
}

void AddDialogs(Album& album, LGLOBAL& shared, MDIContainer& window)
{
    constexpr qint16 kLongestMessage = 16;
    constexpr qint16 kGoBackAndSave = 3;
    shared.messageNumber = kLongestMessage;
    AMsgbox message(shared, &window);
    message.show();
    album.Add(message, u"AMsgbox"_s);
    shared.questionNumber = kGoBackAndSave;
    AllYesNo question(shared, &window);
    question.show();
    album.Add(question, u"AllYesNo"_s);
}

} // namespace

Outcome TakePictures(LGLOBAL& shared, MDIContainer& window, const std::vector<TourStop>& stops,
                     const QString& folder)
{
    if (!QDir().mkpath(folder)) {
        return Outcome::Failure(u"The folder \"%1\" cannot be made."_s.arg(folder));
    }
    Album album(folder);
    const QSize opening = window.size();
    for (const TourStop& stop : stops) {
        TakeAll(
            album, window, opening, [&] { ShowStop(window, stop); }, stop.name);
    }
    AddDialogs(album, shared, window);
    return album.Result();
}
