#include "rockeval/french.h"

#include <array>
#include <optional>
#include <utility>
#include <vector>

namespace rockeval {

namespace {

/// A star stands for what comes from the file; both texts have the same ones in the same order.
struct Pair {
    std::string_view english;
    std::string_view french;
};

constexpr std::array pairs{
    Pair{"no row of the section [Curves pyro] can be used; it needs rows of time, temperature and FID "
         "separated by tabs, so export the file from the analyser again",
         "aucune ligne de la section [Curves pyro] n'est utilisable ; il faut des lignes de temps, "
         "température et FID séparés par des tabulations, exportez donc à nouveau le fichier de "
         "l'analyseur"},
    Pair{"the file ends without a section [Curves pyro]; choose the .S00 file of a Rock-Eval analysis",
         "le fichier se termine sans section [Curves pyro] ; choisissez le fichier .S00 d'une analyse "
         "Rock-Eval"},
    Pair{"row left out: * has fewer than the three columns time, temperature and FID",
         "ligne laissée de côté : * a moins que les trois colonnes temps, température et FID"},
    Pair{"the file ends within this row, so its FID value may be cut off",
         "le fichier se termine dans cette ligne, sa valeur FID peut donc être tronquée"},
    Pair{"row left out: * in the column * is not a number that can be stored",
         "ligne laissée de côté : *, dans la colonne *, n'est pas un nombre qui peut être enregistré"},
    Pair{"row left out: its time * s is not above the last one, * s",
         "ligne laissée de côté : son temps, * s, ne dépasse pas le précédent, * s"},
    Pair{"missing seconds: * between * s and * s", "secondes manquantes : * entre * s et * s"},
    Pair{"a further section [Curves pyro] is ignored, only the first one is read",
         "une autre section [Curves pyro] est ignorée, seule la première est lue"},
    Pair{"the file ends without a section in square brackets; choose the .R00 file of a Rock-Eval analysis",
         "le fichier se termine sans section entre crochets ; choisissez le fichier .R00 d'une analyse "
         "Rock-Eval"},
    Pair{"there are more than * lines, so this is no result file; choose the .R00 file of a Rock-Eval "
         "analysis",
         "il y a plus de * lignes, ce n'est donc pas un fichier de résultats ; choisissez le fichier .R00 "
         "d'une analyse Rock-Eval"},
    Pair{"the section * lacks its closing bracket", "il manque à la section * son crochet fermant"},
    Pair{"the section * occurs again", "la section * figure une nouvelle fois"},
    Pair{"there are lines before the first section", "il y a des lignes avant la première section"},
    Pair{"* has no key before an equals sign", "* n'a pas de clé avant un signe égal"},
    Pair{"the key * occurs again in its section", "la clé * figure une nouvelle fois dans sa section"},
    Pair{"the file is larger than * bytes and so is no raw Rock-Eval file; choose a .S00 or .R00 file",
         "le fichier dépasse * octets, ce n'est donc pas un fichier brut Rock-Eval ; choisissez un fichier "
         ".S00 ou .R00"},
    Pair{"there is no such file; check the path", "ce fichier n'existe pas ; vérifiez le chemin"},
    Pair{"this is a folder; name a file in it", "c'est un dossier ; nommez un fichier qu'il contient"},
    Pair{"the file can't be looked at (*); check the path and its permissions",
         "le fichier ne peut pas être examiné (*) ; vérifiez le chemin et ses droits d'accès"},
    Pair{"this is a pipe or a device, not a file; copy its data into a file first",
         "c'est un tube ou un périphérique et non un fichier ; copiez d'abord ses données dans un fichier"},
    Pair{"the size of the file can't be read (*); check its permissions",
         "la taille du fichier ne peut pas être lue (*) ; vérifiez ses droits d'accès"},
    Pair{"the file can't be opened; check its permissions",
         "le fichier ne peut pas être ouvert ; vérifiez ses droits d'accès"},
    Pair{"the file can't be read to its end; check the drive and copy the file again",
         "le fichier ne peut pas être lu jusqu'à sa fin ; vérifiez le disque et copiez-le à nouveau"},
    Pair{"and * more from this line on", "et * autres à partir de cette ligne"},
    Pair{"the file is binary or UTF-16, not 8-bit text; export it from the analyser again as plain text",
         "le fichier est binaire ou en UTF-16, et non du texte de 8 bits ; exportez-le à nouveau de "
         "l'analyseur en texte brut"},
    Pair{"the file is binary, it holds a zero byte; export it from the analyser again as plain text",
         "le fichier est binaire, il contient un octet nul ; exportez-le à nouveau de l'analyseur en texte "
         "brut"},
    Pair{"the file is empty; export it from the analyser again as plain text",
         "le fichier est vide ; exportez-le à nouveau de l'analyseur en texte brut"},
    Pair{"a value of the curve doesn't fit a float; read the curve from its file again",
         "une valeur de la courbe ne tient pas dans un nombre de simple précision ; relisez la courbe de "
         "son fichier"},
};

std::vector<std::string_view> pieces(std::string_view text) {
    std::vector<std::string_view> found;
    for (std::size_t star = text.find('*'); star != std::string_view::npos; star = text.find('*')) {
        found.push_back(text.substr(0, star));
        text.remove_prefix(star + 1);
    }
    found.push_back(text);
    return found;
}

/// What stands in the places of the stars, if the text is of that form.
std::optional<std::vector<std::string_view>> fillings(std::string_view text, std::string_view form) {
    const std::vector<std::string_view> fixed = pieces(form);
    if (text.substr(0, fixed.front().size()) != fixed.front())
        return std::nullopt;
    text.remove_prefix(fixed.front().size());
    std::vector<std::string_view> found;
    for (std::size_t i = 1; i < fixed.size(); ++i) {
        const bool last = i + 1 == fixed.size();
        const std::size_t at = last && fixed[i].empty() ? text.size()
                               : last                   ? text.rfind(fixed[i])
                                                        : text.find(fixed[i]);
        if (at == std::string_view::npos)
            return std::nullopt;
        found.push_back(text.substr(0, at));
        text.remove_prefix(at + fixed[i].size());
    }
    return text.empty() ? std::optional(found) : std::nullopt;
}

std::string filled(std::string_view form, const std::vector<std::string_view>& fillings) {
    const std::vector<std::string_view> fixed = pieces(form);
    std::string text(fixed.front());
    for (std::size_t i = 0; i < fillings.size(); ++i)
        text.append(fillings[i]).append(fixed[i + 1]);
    return text;
}

} // namespace

std::string inFrench(std::string_view remark) {
    for (const Pair& pair : pairs) {
        if (const auto found = fillings(remark, pair.english))
            return filled(pair.french, *found);
    }
    return std::string(remark);
}

} // namespace rockeval
