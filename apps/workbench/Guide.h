#pragma once

#include <QString>

/// The user guide that the application carries, in the language of the application.
namespace Guide {

/// Where the guide and its pictures lie.
QString folder();
/// The guide's text, in the language chosen now.
QString text();

/// The heading of the page that a help number stands for (`HelpId`), in the language chosen now; empty for
/// the guide's start, and for a number without a page.
QString headingFor(int helpId);

/// What a link within the guide names a heading by: "The quality check" is "the-quality-check". As the
/// common renderers of the guide's format make it, so that the links work on the web, too.
QString anchorOf(const QString& heading);

} // namespace Guide
