#pragma once

#include "TKnownProperty.h"

#include <QHash>
#include <QVector>

/// A description of samples by properties.
class TDescriptionWithProperty {
public:
    virtual ~TDescriptionWithProperty();
    TDescriptionWithProperty(const TDescriptionWithProperty&) = delete;
    TDescriptionWithProperty& operator=(const TDescriptionWithProperty&) = delete;

    /// In the order in which a person would look for them.
    virtual const QVector<TKnownProperty>& properties() const = 0;

    /// The names under which tables may carry the built-in properties, by a key each: the labels; with true
    /// also label and unit ("TOC (wt%)") and the long names in both languages.
    QHash<QString, QString> getPropertiesLabels(bool allForms) const;

protected:
    TDescriptionWithProperty() = default;
};
