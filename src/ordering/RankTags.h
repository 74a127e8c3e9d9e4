// What the Tags of the ordering step's controls say: of a row and its label the rank, of a button a letter and its
// attribute's id. Letters: A and C listed attributes of the benefit and the cost group, B and D placed ones.
#pragma once

#include "view/Controls.h"

namespace Tarnwise {

int RankOfTag(const Control& row);
void SetRank(PictureBox& row, Label& label, int rank);

// Error 13 where there is no Tag.
int AttOfTag(const Control& button);

// '\0' where there is no Tag.
char LetterOf(const Control& control);

}  // namespace Tarnwise
