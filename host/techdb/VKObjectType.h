#pragma once

/// What an object of a database is. The numbers travel in drags and must stay.
enum class VKObjectType {
    Analysis = 1,
    Signal = 2,
    Well = 3,
};
