#pragma once

#include <QTextBlock>
#include <QTextBrowser>
#include <QVector>

/// The user guide, opened at the page of a help number (`HelpId`), or at its start. Shows what the
/// application carries and nothing else: links within the guide work, others are told on the log and not
/// followed. Follows the language of the application and stays at the page it shows.
class HelpPage : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpPage(int helpId, QWidget* parent = nullptr);

    /// Turns to the page of a help number.
    void turnTo(int helpId);

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private slots:
    void showWanted();

private:
    void translate();
    void showSoon(int number);
    void follow(const QUrl& link);
    /// Headings are counted from the start of the guide, which is 0; both languages have the same ones.
    int headingInSight() const;
    void showHeading(int number);
    QVector<QTextBlock> headings() const;

    int m_wanted = -1; ///< the heading to be shown soon; negative for none
};
