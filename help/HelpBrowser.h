#pragma once

#include <QTextBrowser>

/// Shows the pages of the help. It reads nothing but them: a link that leads anywhere else is not followed.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    /// The name of the page with that address.
    [[nodiscard]] static QString PageAt(const QUrl& url);

    /// Shows a page from its beginning.
    void ShowPage(const QString& name);

    /// Marks all places where the words stand, and goes to the first. Without words nothing is marked.
    void MarkWords(const QStringList& words);

    /// Makes the letters a number of steps larger than the desktop's, or smaller.
    void SetTextSize(int steps);

    /// What stands in the file of the page that is shown.
    [[nodiscard]] QString PageHtml() const;

    /// The folder of the pages in the program.
    [[nodiscard]] static QString Folder();

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
    void changeEvent(QEvent* event) override;

private:
    void TakeStyle();
};
