#pragma once

/// What an object of a database is. The numbers travel in drags and must stay; those from Compound on stand
/// in catalogues, not in projects, and are never dragged.
enum class VKObjectType {
    Analysis = 1,
    Signal = 2,
    Well = 3,
    Compound = 4,
    Eic = 5,
    Pair = 6,
    Parameter = 7,
};
