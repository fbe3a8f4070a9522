// Enlarges the indicators of check boxes and option buttons, here called marks, for a large font.
// Styles draw them in the same size for all fonts.
#pragma once

#include <QAbstractButton>

/// Makes the mark of a check box or option button as high as its letters if the style would draw it
/// smaller; otherwise changes nothing.
void EnlargeMark(QAbstractButton& button);
