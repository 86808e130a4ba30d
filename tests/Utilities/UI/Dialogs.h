#pragma once

// The templates in Dialogs.rc and their controls.
#define DIALOG_EXAMPLE 100
#define DIALOG_BROKEN 101
#define DIALOG_MISSING 102
#define CONTROL_LABEL 201
#define CONTROL_EDIT 202
#define CONTROL_DRAWN 203
