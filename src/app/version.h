#pragma once

/// The version of the program: shown by the dialogs, and the version of the whole project.
inline constexpr char pressDeskVersion[] = "6.1.0";
