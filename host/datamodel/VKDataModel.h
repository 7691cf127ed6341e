#pragma once

#include "TDataModel.h"
#include "TProperty.h"

#include <QList>
#include <QString>

/// A table with a name and properties of its own.
class VKDataModel : public TDataModel {
    Q_OBJECT

public:
    /// The role under which datasets are stored and read, headers and cells. It reads and writes the same
    /// value as `Qt::DisplayRole` and `Qt::EditRole`.
    static constexpr int datasetRole = 34;

    explicit VKDataModel(QObject* parent = nullptr);
    ~VKDataModel() override;

    /// What the table shows ("Source Rock") and the project it belongs to; the data editor's title.
    void setName(const QString& name, const QString& project);
    const QString& name() const { return m_name; }
    const QString& project() const { return m_project; }

    /// Replaces all properties.
    void setProperties(const QList<TProperty>& properties);
    const QList<TProperty>& properties() const { return m_properties; }

    /// Whether a role is one of the three that read and write a table's one value.
    static bool isValueRole(int role);
    /// Whether a value is a number by its type; texts are not.
    static bool isNumber(const QVariant& value);

private:
    QString m_name;
    QString m_project;
    QList<TProperty> m_properties;
};
