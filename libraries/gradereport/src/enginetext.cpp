#include "gradereport/enginetext.h"

#include "core/exception.h"
#include "phrases/phrasebook.h"

#include <array>

namespace gradereport {

namespace {

using phrases::Phrase;

/// What a curve can make the engine say; what only a wrong call could isn't here.
constexpr std::array enginePhrases{
    Phrase{"Problem with size of vectors", "les vecteurs n'ont pas la même taille"},
    Phrase{"try to get X with an index out of signal's data range (size=*, index=*)",
           "accès à une abscisse hors des données du signal (taille = *, indice = *)"},
    Phrase{"try to get Y with an index out of signal's data range (size=*, index=*)",
           "accès à une ordonnée hors des données du signal (taille = *, indice = *)"},
    Phrase{"try to get an index out of signal's data range; i=*; size=*",
           "indice hors des données du signal ; i = * ; taille = *"},
    Phrase{"x value out of bounds. Signal's range = [*:*]; x=*",
           "x est hors des limites ; domaine du signal = [* : *] ; x = *"},
    Phrase{"problem in interpolateLinear: index = *; size = *; x = *",
           "interpolation linéaire impossible : indice = * ; taille = * ; x = *"},
    Phrase{"problem in interpolateQuadratic: index = *; size = *; x = *",
           "interpolation quadratique impossible : indice = * ; taille = * ; x = *"},
    Phrase{"Can not extrapolate (index = *; size = *)", "extrapolation impossible (indice = * ; taille = *)"},
    Phrase{"can not extrapolate at X=*: index=*, size=*",
           "extrapolation impossible en X = * : indice = *, taille = *"},
    Phrase{"interpolateQuadratic needs 3 distinct points",
           "l'interpolation quadratique demande trois points distincts"},
    Phrase{"Try to extract a signal from a 0 point signal",
           "il n'y a aucun point dont extraire une partie du signal"},
    Phrase{" n should be the same", "le nombre de points devrait rester le même"},
    Phrase{"request over-sized vector", "un vecteur trop grand est demandé"},
    Phrase{"try to evaluate a function out of its domain definition. x = *, xmin=*, xmax=*",
           "évaluation d'une fonction hors de son domaine de définition ; x = *, xmin = *, xmax = *"},
    Phrase{"The chromatogram is not defined", "le chromatogramme n'est pas défini"},
};

} // namespace

std::string engineText(const std::string& what, Language language) {
    std::string message = algo::core::messageOf(what);
    if (language == Language::english)
        return message;
    const bool ownWords = what.rfind("Error in ", 0) == 0;
    return ownWords ? phrases::inFrench(message, enginePhrases)
                    : "refus de la bibliothèque standard : " + message;
}

} // namespace gradereport
