# What the packages of all systems say of the program.

set(COURRIEL dorvanel@dorvanel.example)
set(CPACK_PACKAGE_VENDOR Dorvanel)
set(CPACK_PACKAGE_HOMEPAGE_URL https://dorvanel.example/Dorvanel/index.html)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "loads and unloads CN programs of machine tools")
set(CPACK_STRIP_FILES ON)
