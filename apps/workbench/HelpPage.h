#pragma once

#include <QTextBrowser>

/// The user guide, opened at the page of a help number. Shows what the application carries and nothing else:
/// links within the guide work, others are shown as text and not followed.
class HelpPage : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpPage(int helpId, QWidget* parent = nullptr);

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void translate();
    void follow(const QUrl& link);
    void showHeading(const QString& heading);

    QString m_heading;
};
