// Everything that a session can change, as bytes to be compared.
#pragma once

#include <tarnwise/Scalars.h>

namespace Tarnwise {

class Platform;
struct Form;
struct WizardData;

String WorldText(const Platform& screen, const WizardData& data);  // all forms and all variables
String StoredText(const WizardData& data);                         // ranking, judgments and points
String PanelsText(const Form& form);                               // lists and rank rows of the ordering step
String RankingText(const Form& form, const WizardData& data);      // what its second stage shows

// Where two of them part: the control or the section of the data.
String Parting(const String& before, const String& after);

}  // namespace Tarnwise
