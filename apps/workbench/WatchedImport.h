#pragma once

#include "ImportListener.h"
#include "VKError.h"

#include <QAbstractItemModel>

#include <utility>

class VKImportAnalysisInterface;
class VKImportCtrl;
class VKImportDatasetInterface;
class VKImportInterface;

/// An import module that tells a listener what it does. Its work is the module's own: nothing is changed,
/// left out or caught here.
template <class Controller>
class WatchedImport : public Controller {
public:
    /// The listener outlives this object.
    explicit WatchedImport(ImportListener& listener) : m_listener(listener) {}

    const ImportListener::Codes& files() { return this->model(); }

protected:
    /// The first step of a pass.
    void retrieveDLLImport(VKImportCtrl& importCtrl, QList<VKImportInterface*>& interfaces) override {
        m_listener.passBegan(this->m_moduleLabel, files());
        Controller::retrieveDLLImport(importCtrl, interfaces);
    }

    void import(VKImportAnalysisInterface* importInterface, const QString& path) override {
        m_stored = true; // a curve or a table of results is stored, or the import fails
        watch(path, [&] { Controller::import(importInterface, path); });
    }

    void import(VKImportDatasetInterface* importInterface, const QString& path) override {
        m_stored = false; // a wizard that is given up ends the import without a failure
        watch(path, [&] { Controller::import(importInterface, path); });
    }

    /// Called once the table is stored.
    void specificProcess(const QAbstractItemModel* model) override {
        m_stored = true;
        Controller::specificProcess(model);
    }

private:
    template <class Import>
    void watch(const QString& path, Import import) {
        m_listener.fileBegan(path);
        try {
            import();
        } catch (const VKError& error) {
            m_listener.fileFailed(error.text());
            throw;
        }
        m_listener.fileEnded(m_stored);
    }

    ImportListener& m_listener;
    bool m_stored = false;
};
