// Identifiers of the images in images.rc; #defines, because the resource compiler reads them too.
#pragma once

// clang-format off

// Icons. The tool icons hold 16, 20, 24 and 32 pixels: one size for each of 100, 125, 150 and 200 %.
#define IDI_KORVANE                 100
#define IDI_RUN                     301   // run, search and settings stand on the white field of a box or on a menu
#define IDI_RUN_DISABLED            302
#define IDI_SEARCH                  303
#define IDI_SEARCH_DISABLED         304
#define IDI_SETTINGS                305
#define IDI_OPTIONS_ON_DARK         306   // options and help stand on the bar: light drawing on a darkish bar
#define IDI_OPTIONS_ON_LIGHT        307   // and dark drawing on a light one
#define IDI_HELP_ON_DARK            308
#define IDI_HELP_ON_LIGHT           309
#define IDI_OPTION_PAGE             310   // stands on the dark strip of the options
#define IDI_COLOUR                  311   // colour and clearing stand on buttons of the options
#define IDI_COLOUR_DISABLED         312
#define IDI_CLEAR_HISTORIES         313
#define IDI_CLEAR_HISTORIES_DISABLED 314

// Images of the type "PNG": the face of the main menu button, a pair for each display scale in per cent.
#define IDP_MENU_ON_DARK            201
#define IDP_MENU_ON_LIGHT           202
#define IDP_MENU_ON_DARK_125        203
#define IDP_MENU_ON_LIGHT_125       204
#define IDP_MENU_ON_DARK_150        205
#define IDP_MENU_ON_LIGHT_150       206
#define IDP_MENU_ON_DARK_200        207
#define IDP_MENU_ON_LIGHT_200       208

// The head of the about box: a bitmap at 100 %, images of the type "PNG" above.
#define IDB_BANNER                  102
#define IDP_BANNER_125              209
#define IDP_BANNER_150              210
#define IDP_BANNER_200              211
