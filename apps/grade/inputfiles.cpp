#include "inputfiles.h"

#include "gradereport/naturalorder.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <system_error>

namespace grade {

namespace {

namespace fs = std::filesystem;

bool hasSignalSuffix(const fs::path& path) {
    const std::string suffix = path.extension().string();
    return suffix == ".S00" || suffix == ".s00";
}

using gradereport::said;

void searchFolder(const std::string& folder, InputFiles& inputs, gradereport::Language language) {
    const std::size_t before = inputs.files.size();
    std::error_code error;
    auto entry =
        fs::recursive_directory_iterator(folder, fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        std::error_code ignored; // an entry that can't be looked at is tried as a file, and says why it fails
        if (hasSignalSuffix(entry->path()) && !entry->is_directory(ignored)) {
            inputs.files.push_back(entry->path().string());
        }
    }
    if (error) {
        inputs.failures.push_back(
            {folder, folder +
                         said(language, ": the folder could not be searched to its end (",
                              " : le dossier n'a pas pu être parcouru jusqu'à sa fin (") +
                         error.message() +
                         said(language, "); check its permissions.", ") ; vérifiez ses droits d'accès.")});
        return;
    }
    if (inputs.files.size() == before) {
        inputs.failures.push_back(
            {folder,
             folder + said(language, ": the folder holds no raw signal; name one with .S00 files in it.",
                           " : le dossier ne contient aucun signal brut ; nommez-en un avec des fichiers "
                           ".S00.")});
    }
}

void resolve(const std::string& path, InputFiles& inputs, gradereport::Language language) {
    if (path.find('\0') != std::string::npos) {
        inputs.failures.push_back(
            {path, path + said(language,
                               ": the path holds a zero byte, which no file name does; read a list that "
                               "find -print0 wrote with --null.",
                               " : le chemin contient un octet nul, ce qu'aucun nom de fichier ne fait ; "
                               "lisez avec --null une liste écrite par find -print0.")});
        return;
    }
    std::error_code ignored; // what is no folder is tried as a file, and says why it fails
    if (fs::is_directory(path, ignored)) {
        searchFolder(path, inputs, language);
        return;
    }
    inputs.files.push_back(path);
}

void putInOrder(std::vector<std::string>& files) {
    std::sort(files.begin(), files.end(), gradereport::naturallyLess);
    files.erase(std::unique(files.begin(), files.end()), files.end());
}

} // namespace

InputFiles filesAt(const std::string& path, gradereport::Language language) {
    InputFiles inputs;
    resolve(path, inputs, language);
    putInOrder(inputs.files);
    return inputs;
}

InputFiles findInputFiles(const std::vector<std::string>& paths, PathList& listed,
                          gradereport::Language language) {
    InputFiles inputs;
    for (const std::string& path : paths) {
        if (path != "-") {
            resolve(path, inputs, language);
            continue;
        }
        while (const auto line = listed.next()) {
            resolve(*line, inputs, language);
        }
    }
    putInOrder(inputs.files);
    return inputs;
}

} // namespace grade
