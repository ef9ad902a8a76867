#include "pages/base/paneldialog.h"

bool constraintsClear = false;
