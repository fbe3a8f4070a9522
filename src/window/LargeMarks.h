// The marks of check boxes and options in a large font. Styles draw them in one size for all fonts.
#pragma once

#include <QAbstractButton>

/// Makes the mark of a check box or an option as high as its letters, where the style leaves it
/// smaller. Otherwise the button keeps the application's style.
void EnlargeMark(QAbstractButton& button);
