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

    /// The setting that a value of the sensitivity's slider stands for: its complement.
    static double sensitivityAt(double shown) { return 1.0 - shown; }
    /// The settings that the positions of a slider stand for, ascending.
    std::vector<double> coelutions() const;
    std::vector<double> heights() const;

private:
    CheckDials(SliderScientific* sensitivity, SliderScientific* coelution, SliderScientific* height)
        : m_sensitivity(sensitivity), m_coelution(coelution), m_height(height) {}

    SliderScientific* m_sensitivity;
    SliderScientific* m_coelution;
    SliderScientific* m_height;
};
