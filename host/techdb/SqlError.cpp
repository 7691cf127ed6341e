#include "SqlError.h"

#include "ServerAddress.h"

#include <QCoreApplication>
#include <QSqlError>

namespace TechDB {

namespace {

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("TechDB::SqlError", english, french);
}

QString whatHappened(SqlFailure failure) {
    switch (failure) {
    case SqlFailure::Busy:
        return translated("The %2 <b>%1</b> is being written by another window.",
                          "Le %2 <b>%1</b> est en cours d'écriture par une autre fenêtre.");
    case SqlFailure::ReadOnly:
        return translated("The %2 <b>%1</b> can't be written.", "Le %2 <b>%1</b> ne peut pas être écrit.");
    case SqlFailure::Full:
        return translated("The disk of the %2 <b>%1</b> is full; nothing was written.",
                          "Le disque du %2 <b>%1</b> est plein ; rien n'a été écrit.");
    case SqlFailure::Disk: // also a used-up quota, which the engine does not tell from a broken disk
        return translated("The disk of the %2 <b>%1</b> can't be read or written.",
                          "Le disque du %2 <b>%1</b> ne peut pas être lu ou écrit.");
    case SqlFailure::Damaged:
        return translated("The %2 <b>%1</b> is damaged.", "Le %2 <b>%1</b> est endommagé.");
    case SqlFailure::NotADatabase:
        return translated("The file <b>%1</b> is not a %2.", "Le fichier <b>%1</b> n'est pas un %2.");
    case SqlFailure::CannotOpen:
        return translated("The %2 <b>%1</b> can't be opened.", "Le %2 <b>%1</b> ne peut pas être ouvert.");
    case SqlFailure::NameTaken:
        return translated("The %2 <b>%1</b> holds that name already.",
                          "Le %2 <b>%1</b> contient déjà ce nom.");
    case SqlFailure::Cut:
        return translated(
            "The connection to the %2 <b>%1</b> was cut; nothing of what was being written is in "
            "it.",
            "La connexion au %2 <b>%1</b> a été coupée ; rien de ce qui était en cours d'écriture "
            "n'y est.");
    case SqlFailure::Other:
        break;
    }
    return translated("The %2 <b>%1</b> could not be read or written.",
                      "Le %2 <b>%1</b> n'a pas pu être lu ou écrit.");
}

QString whatToDo(SqlFailure failure, DatabaseKind kind) {
    switch (failure) {
    case SqlFailure::Busy:
        return translated("Wait until it is done and try again.",
                          "Attendez qu'elle ait fini et essayez à nouveau.");
    case SqlFailure::ReadOnly:
    case SqlFailure::CannotOpen:
        return translated("Check that the file is there and that it and its folder may be written, or copy "
                          "it to a folder of yours.",
                          "Vérifiez que le fichier existe et que l'écriture y est permise, dans son dossier "
                          "aussi, ou copiez-le dans un de vos dossiers.");
    case SqlFailure::Full:
        return translated("Free some space and try again.", "Libérez de la place et essayez à nouveau.");
    case SqlFailure::Disk:
        return translated("Check its connection, its free space and your share of it, and try again.",
                          "Vérifiez sa connexion, sa place libre et votre quota, puis essayez à nouveau.");
    case SqlFailure::NotADatabase:
        return translated("Choose a file that was saved as a %1.",
                          "Choisissez un fichier enregistré comme %1.")
            .arg(nameOf(kind));
    case SqlFailure::NameTaken:
        return translated("Choose another name.", "Choisissez un autre nom.");
    case SqlFailure::Cut:
        return translated("Check the network and the server, then try again: the connection is made anew.",
                          "Vérifiez le réseau et le serveur, puis essayez à nouveau : la connexion sera "
                          "rétablie.");
    case SqlFailure::Damaged:
    case SqlFailure::Other:
        break;
    }
    return translated("If this happens again, go back to a backup copy.",
                      "Si cela se reproduit, revenez à une copie de sauvegarde.");
}

/// What is said otherwise of a project on a server; empty for the rest.
QString happenedOnServer(SqlFailure failure) {
    switch (failure) {
    case SqlFailure::NotADatabase:
        return translated("The database <b>%1</b> holds no %2.",
                          "La base de données <b>%1</b> ne contient pas de %2.");
    case SqlFailure::ReadOnly:
        return translated("You may read the %2 <b>%1</b>, but not change it.",
                          "Vous pouvez lire le %2 <b>%1</b>, mais pas le modifier.");
    default:
        return {};
    }
}

QString adviceForServer(SqlFailure failure) {
    switch (failure) {
    case SqlFailure::CannotOpen:
        return translated(
            "Check the address, the network and your rights. A password belongs into the password "
            "file of the server's client, which asks for none.",
            "Vérifiez l'adresse, le réseau et vos droits. Un mot de passe a sa place dans le "
            "fichier de mots de passe du client du serveur, qui n'en demande pas.");
    case SqlFailure::ReadOnly:
        return translated("Ask who keeps the server for the right to write.",
                          "Demandez le droit d'écrire à qui gère le serveur.");
    case SqlFailure::NotADatabase:
        return translated("Check the name of the database, or make a new project there.",
                          "Vérifiez le nom de la base, ou créez-y un nouveau projet.");
    case SqlFailure::Full:
    case SqlFailure::Disk:
    case SqlFailure::Damaged:
        return translated("Tell who keeps the server.", "Prévenez qui gère le serveur.");
    default:
        return {};
    }
}

QString firstOf(const QString& wanted, const QString& otherwise) {
    return wanted.isEmpty() ? otherwise : wanted;
}

QString messageOf(SqlFailure failure, DatabaseKind kind, const QString& place) {
    const QString special = ServerAddress::isAddress(place) ? happenedOnServer(failure) : QString();
    return firstOf(special, whatHappened(failure)).arg(place.toHtmlEscaped(), nameOf(kind));
}

QString adviceOf(SqlFailure failure, DatabaseKind kind, const QString& place) {
    const QString special = ServerAddress::isAddress(place) ? adviceForServer(failure) : QString();
    return firstOf(special, whatToDo(failure, kind));
}

QString whereItHappened(const QSqlError& cause) {
    const QString text = cause.databaseText().isEmpty() ? cause.driverText() : cause.databaseText();
    return text.isEmpty() ? QString() : QStringLiteral("(%1)").arg(text.toHtmlEscaped());
}

} // namespace

SqlError::SqlError(SqlFailure failure, const QSqlError& cause, DatabaseKind kind, const QString& place)
    : VKError(messageOf(failure, kind, place), whereItHappened(cause), adviceOf(failure, kind, place)),
      m_failure(failure) {}

SqlError::~SqlError() = default;

} // namespace TechDB
