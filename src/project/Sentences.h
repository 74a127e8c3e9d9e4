// What ratios mean, in the analyst's own units.
#pragma once

#include "project/Evaluation.h"

namespace Tarnwise {

// "Doctors from 60 to 15": what a swing is.
String SwingText(const String& name, const ColumnScale& scale);

// "1.5 means: Doctors from 60 to 15 is worth 1.5 times Nurses from 320 to 120."
String RatioMeaning(double ratio, const String& swing, const String& ofSwing);

// "1 Doctors = 14.583 .. 19.882 Nurses", with the units of measure where the project has them.
String EquivalenceText(const Project& project, const Dea::Problem& problem, const Dea::Equivalence& equivalence);

// "session 0, made 2024-05-17T09:30:00Z by Dr. Müller: First try".
String SessionTitle(const Project& project, std::size_t session);

}  // namespace Tarnwise
