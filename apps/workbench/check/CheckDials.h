#pragma once

#include "gradereport/nearestchange.h"

#include <optional>
#include <vector>

class QWidget;
class SliderScientific;

/// The three sliders of a quality check, and the settings they give. They live as long as their bar.
class CheckDials {
public:
    /// Those of a module's bar, known by their bounds; nothing if it has others.
    static std::optional<CheckDials> of(const QWidget& bar);

    SliderScientific* sensitivity() const { return m_sensitivity; }
    SliderScientific* coelution() const { return m_coelution; }
    SliderScientific* height() const { return m_height; }

    gradereport::EngineSettings settings() const;

    /// The settings that the slider's positions stand for, in their order: of the sensitivity the
    /// complement of what the slider shows, so these descend.
    std::vector<double> sensitivities() const;
    std::vector<double> coelutions() const;
    std::vector<double> heights() const;

private:
    CheckDials(SliderScientific* sensitivity, SliderScientific* coelution, SliderScientific* height)
        : m_sensitivity(sensitivity), m_coelution(coelution), m_height(height) {}

    SliderScientific* m_sensitivity;
    SliderScientific* m_coelution;
    SliderScientific* m_height;
};
