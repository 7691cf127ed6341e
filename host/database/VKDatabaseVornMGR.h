#pragma once

#include "BuiltInParameters.h"
#include "CatalogueView.h"
#include "VornCatalogue.h"

/// The catalogues of parameters, by number. Both are views of one file, which several windows may have open.
///
/// The published catalogue holds the built-in parameters, which are the properties that the application knows
/// (TDescriptionVorn) under all their names, and whatever the working one has published. The built-in ones
/// are not in the file, so that they are always those of the running version.
class VKDatabaseVornMGR {
public:
    static constexpr int workingCatalogue = 9;
    static constexpr int publishedCatalogue = 10;

    /// For the interface thread.
    static VKDatabaseVornMGR* getInstance();

    /// Null for any other number. A catalogue that can't be opened answers null to everything, and says why.
    VKVornDatabaseInterface* db(int number);

    /// Where the file is from now on; it is made when it is first needed. Empty, as at the start, means the
    /// folder of the application's data. Closes what is open.
    void setPlace(const QString& file) { m_catalogue.setPlace(file); }
    QString place() const { return m_catalogue.place(); }

    /// Closes the file, and ends all objects and records that came out of it; the next question opens it
    /// again. The end of the application object closes it too.
    void close() { m_catalogue.close(); }

private:
    VKDatabaseVornMGR();

    VornCatalogue m_catalogue;
    BuiltInParameters m_builtIn;
    CatalogueView m_working{m_catalogue, m_builtIn, CatalogueView::Scope::All};
    CatalogueView m_published{m_catalogue, m_builtIn, CatalogueView::Scope::Published};
};
