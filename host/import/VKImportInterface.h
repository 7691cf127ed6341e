#pragma once

#include <memory>

class QString;
class TFileBuffer;

/// A reader of one kind of files, for the files of one import pass. Made by `VKImportCtrl::getDll`, which
/// says what kind; it may be deleted by its user or is deleted with the pass.
class VKImportInterface {
public:
    VKImportInterface() = default;
    virtual ~VKImportInterface();
    VKImportInterface(const VKImportInterface&) = delete;
    VKImportInterface& operator=(const VKImportInterface&) = delete;

    /// With true, before `acceptsFile`: forgets the source, so that no file is judged by the one before it.
    virtual void prepareForProbe(bool probe) = 0;

    /// Whether this reader is the one for the file at `path`, by its name and by how its content begins. An
    /// empty buffer means that the file is looked at on disk. Never throws: a file that bears a name of this
    /// kind but can't be read, or is something else, is refused with an Error on the log that says why;
    /// `text` then holds the same sentence.
    virtual bool acceptsFile(TFileBuffer& buffer, const QString& path, QString& text) = 0;

    /// Takes the file to read, in the place of the one before, whose results end. `name` is the file's name
    /// if its content comes in `buffer`, which passes to this object, or the whole path without a buffer.
    /// `folder` and `text` may be empty. Reading is done when a result is asked for.
    virtual void setSource(const QString& folder, const QString& name, const QString& text,
                           TFileBuffer* buffer) = 0;

private:
    friend class VKImportCtrl;

    // For as long as this object lives: how its maker knows which readers are left.
    std::shared_ptr<VKImportInterface*> m_self = std::make_shared<VKImportInterface*>(this);
};
