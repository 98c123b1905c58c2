#pragma once

// The maker's addresses on the web. The system's own programs open them; where there is none, nothing happens.

constexpr char16_t AdresseSite[] = u"https://dorvanel.example";
constexpr char16_t AdresseCourrier[] = u"contact@dorvanel.example";

void Mnu_AideEnLigne(); ///< opens the online lessons in the operator's language
