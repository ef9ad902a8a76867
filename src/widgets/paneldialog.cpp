#include "widgets/paneldialog.h"

bool constraintsClear = false;
