#pragma once

class QWidget;

/// The application as a whole.
///
/// Implemented by the application, and registered for as long as the implementation lives. For the
/// interface thread only.
class ApplicationInterface {
public:
    /// What changed in the project, for `notifyProjectChanged`.
    static constexpr int analysesChanged = 1;
    static constexpr int datasetsChanged = 3;

    virtual ~ApplicationInterface();
    ApplicationInterface(const ApplicationInterface&) = delete;
    ApplicationInterface& operator=(const ApplicationInterface&) = delete;

    /// The registered implementation, or null. Ask each time: it may come and go.
    static ApplicationInterface* returnMe();

    /// The main window, as the parent of dialogs; null while there is none.
    virtual QWidget* mainWidget() const = 0;

    /// Refreshes what shows the project's objects of this kind; an unknown number refreshes everything.
    virtual void notifyProjectChanged(int change) = 0;

    /// Opens a page of the user guide; 0 and a number without a page open the first one.
    virtual void showHelp(int helpId) = 0;

protected:
    /// Registers this object. A second one while the first lives is refused with a warning.
    ApplicationInterface();
};
