#include "rockeval/french.h"

#include "phrases/phrasebook.h"

#include <array>
#include <cstddef>

namespace rockeval {

namespace {

using phrases::Phrase;

constexpr std::array pairs{
    Phrase{"no row of the section [Curves pyro] can be used; it needs rows of time, temperature and FID "
           "separated by tabs, so export the file from the analyser again",
           "aucune ligne de la section [Curves pyro] n'est utilisable ; il faut des lignes de temps, "
           "température et FID séparés par des tabulations, exportez donc à nouveau le fichier de "
           "l'analyseur"},
    Phrase{"the file ends without a section [Curves pyro]; choose the .S00 file of a Rock-Eval analysis",
           "le fichier se termine sans section [Curves pyro] ; choisissez le fichier .S00 d'une analyse "
           "Rock-Eval"},
    Phrase{"row left out: * has fewer than the three columns time, temperature and FID",
           "ligne laissée de côté : * a moins que les trois colonnes temps, température et FID"},
    Phrase{"the file ends within this row, so its FID value may be cut off",
           "le fichier se termine dans cette ligne, sa valeur FID peut donc être tronquée"},
    Phrase{"row left out: * in the column * is not a number that can be stored",
           "ligne laissée de côté : *, dans la colonne *, n'est pas un nombre qui peut être enregistré"},
    Phrase{"row left out: its time * s is not above the last one, * s",
           "ligne laissée de côté : son temps, * s, ne dépasse pas le précédent, * s"},
    Phrase{"missing seconds: * between * s and * s", "secondes manquantes : * entre * s et * s"},
    Phrase{"a further section [Curves pyro] is ignored, only the first one is read",
           "une autre section [Curves pyro] est ignorée, seule la première est lue"},
    Phrase{"the file ends without a section in square brackets; choose the .R00 file of a Rock-Eval analysis",
           "le fichier se termine sans section entre crochets ; choisissez le fichier .R00 d'une analyse "
           "Rock-Eval"},
    Phrase{"there are more than * lines, so this is no result file; choose the .R00 file of a Rock-Eval "
           "analysis",
           "il y a plus de * lignes, ce n'est donc pas un fichier de résultats ; choisissez le fichier .R00 "
           "d'une analyse Rock-Eval"},
    Phrase{"the section * lacks its closing bracket", "il manque à la section * son crochet fermant"},
    Phrase{"the section * occurs again", "la section * figure une nouvelle fois"},
    Phrase{"there are lines before the first section", "il y a des lignes avant la première section"},
    Phrase{"* has no key before an equals sign", "* n'a pas de clé avant un signe égal"},
    Phrase{"the key * occurs again in its section", "la clé * figure une nouvelle fois dans sa section"},
    Phrase{"the file is larger than * bytes and so is no raw Rock-Eval file; choose a .S00 or .R00 file",
           "le fichier dépasse * octets, ce n'est donc pas un fichier brut Rock-Eval ; choisissez un fichier "
           ".S00 ou .R00"},
    Phrase{"there is no such file; check the path", "ce fichier n'existe pas ; vérifiez le chemin"},
    Phrase{"this is a folder; name a file in it", "c'est un dossier ; nommez un fichier qu'il contient"},
    Phrase{"the file can't be looked at (*); check the path and its permissions",
           "le fichier ne peut pas être examiné (*) ; vérifiez le chemin et ses droits d'accès"},
    Phrase{"this is a pipe or a device, not a file; copy its data into a file first",
           "c'est un tube ou un périphérique et non un fichier ; copiez d'abord ses données dans un fichier"},
    Phrase{"the size of the file can't be read (*); check its permissions",
           "la taille du fichier ne peut pas être lue (*) ; vérifiez ses droits d'accès"},
    Phrase{"the file can't be opened; check its permissions",
           "le fichier ne peut pas être ouvert ; vérifiez ses droits d'accès"},
    Phrase{"the file can't be read to its end; check the drive and copy the file again",
           "le fichier ne peut pas être lu jusqu'à sa fin ; vérifiez le disque et copiez-le à nouveau"},
    Phrase{"and * more from this line on", "et * autres à partir de cette ligne"},
    Phrase{"the file is binary or UTF-16, not 8-bit text; export it from the analyser again as plain text",
           "le fichier est binaire ou en UTF-16, et non du texte de 8 bits ; exportez-le à nouveau de "
           "l'analyseur en texte brut"},
    Phrase{"the file is binary, it holds a zero byte; export it from the analyser again as plain text",
           "le fichier est binaire, il contient un octet nul ; exportez-le à nouveau de l'analyseur en texte "
           "brut"},
    Phrase{"the file is empty; export it from the analyser again as plain text",
           "le fichier est vide ; exportez-le à nouveau de l'analyseur en texte brut"},
    Phrase{"a value of the curve doesn't fit a float; read the curve from its file again",
           "une valeur de la courbe ne tient pas dans un nombre de simple précision ; relisez la courbe de "
           "son fichier"},
};

/// "line 4: ...", as a warning with its place reads.
struct Placed {
    std::string place; ///< in French
    std::string_view text;
};

Placed placed(std::string_view remark) {
    constexpr std::string_view start = "line ";
    const std::size_t colon = remark.find(": ");
    if (remark.substr(0, start.size()) != start || colon == std::string_view::npos)
        return {"", remark};
    const std::string_view number = remark.substr(start.size(), colon - start.size());
    if (number.find_first_not_of("0123456789") != std::string_view::npos)
        return {"", remark};
    return {"ligne " + std::string(number) + " : ", remark.substr(colon + 2)};
}

} // namespace

std::string inFrench(std::string_view remark) {
    const Placed parts = placed(remark);
    return parts.place + phrases::inFrench(parts.text, pairs);
}

} // namespace rockeval
