#pragma once

#include "HelpId.h"
#include "HelpInterface.h"
#include "TLooseParts.h"
#include "TViewerNotes.h"

#include <QWidget>

namespace TechPlot {

/// Base of the plot area's editors: a widget that holds viewers. It is open from its construction until
/// `close` or its end, and owns what was made for it and stands in no viewer (see TNode).
class TEditor : public QWidget, public HelpInterface {
    Q_OBJECT

public:
    explicit TEditor(QWidget* parent = nullptr);
    ~TEditor() override;

    int getIdForHelp() const override { return HelpId::curves; }

    /// Fits the viewers to the space there is.
    virtual void adjustViewers() = 0;

    /// Takes nothing more into its ownership and disposes of itself later than the running event. What
    /// is called a second time does nothing.
    void release();

    /// The owner of the plotters that no viewer holds.
    TLooseParts& looseParts() { return m_looseParts; }

    /// What is said under the titles of its viewers.
    TViewerNotes& notes() { return m_notes; }

signals:
    /// Viewers of these names were saved to a file.
    void exported(const QString& path, const QStringList& viewers);

private:
    TLooseParts m_looseParts;
    TViewerNotes m_notes;
};

} // namespace TechPlot
