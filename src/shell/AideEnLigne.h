#pragma once

// The maker on the web. The system's own programs open these addresses; where there is none, nothing happens.

constexpr char16_t AdresseSite[] = u"https://dorvanel.example";
constexpr char16_t AdresseCourrier[] = u"contact@dorvanel.example";

void Mnu_AideEnLigne(); ///< opens the lessons on line, in the operator's language
