// What ratios mean, in the analyst's own units.
#pragma once

#include "project/Evaluation.h"
#include "project/Signs.h"

namespace Tarnwise {

constexpr int kRatioDigits = 5;  // significant digits of a judged ratio in a text

// "Doctors from 60 to 15": what a swing is.
String SwingText(const String& name, const ColumnScale& scale);

// "1.5 means: Doctors from 60 to 15 is worth 1.5 times Nurses from 320 to 120."
String RatioMeaning(double ratio, const String& swing, const String& ofSwing);

// What the session's ratios compare: "Doctors from 60 to 15" on the range, "Doctors over its whole curve" on the scale,
// "1 Doctors" per unit; with the scale that was judged on.
String JudgedSwing(const Project& project, const JudgmentSession& session, const String& name);

// What links the groups in the value form: "Cross ratio: Nurses from 320 to 120 is worth 1.15 times Outpatients from 90
// to 270.", with the ends of its band where there is one, or that nothing does. `asked` names a session.
String CrossText(const Project& project, const Asked& asked);

// "1 Doctors = 14.583 .. 19.882 Nurses", with the units of measure where the project has them.
String EquivalenceText(const Project& project, const Dea::Problem& problem, const Dea::Equivalence& equivalence,
                       const ResultsSigns& signs = kPlainSigns);

// "session 0, made 2024-05-17T09:30:00Z by Dr. Müller: First try".
String SessionTitle(const Project& project, std::size_t session);

}  // namespace Tarnwise
