// Layouts of the modal forms.
#pragma once

#include "platform/controls.h"

namespace trelvo {

class DesktopQt;
class FormDialog;

// By the form's name.
void lay_out_dialog(DesktopQt& desktop, FormDialog& dialog, Form& form);

void lay_out_TipoLinea(DesktopQt& desktop, FormDialog& dialog, Form& form);
void lay_out_TipoSuperficie(DesktopQt& desktop, FormDialog& dialog, Form& form);
void lay_out_Gesttesto(DesktopQt& desktop, FormDialog& dialog, Form& form);
void lay_out_Geststamp(DesktopQt& desktop, FormDialog& dialog, Form& form);
void lay_out_Spesslin(DesktopQt& desktop, FormDialog& dialog, Form& form);
void lay_out_CoordVert(DesktopQt& desktop, FormDialog& dialog, Form& form);
void lay_out_trova(DesktopQt& desktop, FormDialog& dialog, Form& form);
void lay_out_rientri(DesktopQt& desktop, FormDialog& dialog, Form& form);

}  // namespace trelvo
