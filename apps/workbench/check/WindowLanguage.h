#pragma once

#include "gradereport/language.h"

/// The language that the window speaks at the moment, for texts that come from outside Qt.
gradereport::Language windowLanguage();
