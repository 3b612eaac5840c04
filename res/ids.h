// Identifiers shared by the program and its resource script; #defines, because the resource compiler reads them too.
#pragma once

#include "res/image_ids.h"

// clang-format off

// Resources.
#define IDM_BAR                     101   // three pop-ups: main menu, search menu, control panel menu
#define IDM_LAUNCH_BUTTON           102   // one pop-up
#define IDA_BAR                     128
#define IDD_ABOUT                   102
#define IDD_HISTORY_DROP_DOWN       103
#define IDD_TIME_DATE               104
#define IDD_OPTIONS                 105
#define IDD_OPTIONS_MAIN            106
#define IDD_OPTIONS_COMMANDS        107
#define IDD_OPTIONS_LAUNCH          108
#define IDD_EDIT_SEARCH             109
#define IDD_ADD_COMMAND             110
#define IDD_SELECT_ICON             111
#define IDD_ADD_LAUNCH_ITEM         112
#define IDD_IMPORT                  113

// Menu pop-ups by position in IDM_BAR.
#define POPUP_MAIN                  0
#define POPUP_SEARCH                1
#define POPUP_CONTROL_PANEL         2

// Controls of the bar, and the commands that they send.
#define ID_MAIN_MENU                2000
#define ID_COMMAND_BOX              2001
#define ID_SEARCH_BOX               2002
#define ID_COMMAND_HISTORY          2003
#define ID_SEARCH_HISTORY           2004
#define ID_RUN_TYPED                2005
#define ID_RUN_SEARCH               2006
#define ID_SEARCH_CHOOSER           2007
#define ID_CONTROL_PANEL            2008
#define ID_OPTIONS                  2009
#define ID_CLOCK                    2014

// Commands that open a control of the bar by keyboard.
#define ID_OPEN_MAIN_MENU           2010
#define ID_OPEN_COMMAND_HISTORY     2011
#define ID_OPEN_SEARCH_HISTORY      2012
#define ID_OPEN_SEARCH_CHOOSER      2013
#define ID_OPEN_CONTROL_PANEL       4000

// Browsing for a path to put into the command input box.
#define ID_BROWSE_FILE              2020
#define ID_BROWSE_FOLDER            2021

// What the menu of a launch button does with its item.
#define ID_ITEM_OPEN                2025
#define ID_ITEM_EDIT                2026
#define ID_ITEM_FOLDER              2027

// Built-in programs.
#define ID_PROGRAM_FIRST            3001
#define ID_NOTEPAD                  3001
#define ID_PAINT                    3002
#define ID_CALCULATOR               3003
#define ID_COMMAND_PROMPT           3004
#define ID_EXPLORER                 3005
#define ID_WORDPAD                  3006
#define ID_WINDOWS_UPDATE           3007
#define ID_PROGRAM_LAST             3007

// Six-field command entries: control panel entries, then the launch buttons.
#define ID_ENTRY_FIRST              4001
#define ID_CONTROL_PANEL_LAST       4024
#define ID_LAUNCH_BUTTON_1          4025
#define ID_LAUNCH_BUTTON_2          4026
#define ID_LAUNCH_BUTTON_3          4027
#define ID_ENTRY_LAST               4027

// Launch menu.
#define ID_LAUNCH_FIRST             4028
#define ID_LAUNCH_LAST              4062
#define ID_LAUNCH_SETTINGS          4063

// Ending the Windows session.
#define ID_SIGN_OUT                 4100
#define ID_SHUT_DOWN                4101
#define ID_RESTART                  4102

// Task switching.
#define ID_NO_TASK                  4500
#define ID_TASK_FIRST               4501
#define ID_TASK_LAST                4600

// Search commands: 5000 + n for standard command n, 5051 + n for user command n.
#define ID_SEARCH_SETTINGS          5000
#define ID_SEARCH_FIRST             5001
#define ID_SEARCH_LAST              5102

// Toggles and the remaining commands of the main menu.
#define ID_DESKTOP_BAR_MODE         40001
#define ID_TOPMOST                  40002
#define ID_AUTO_HIDE                40003
#define ID_MONITOR_CLIPBOARD        40004
#define ID_ONLINE_DOCUMENTS         40005
#define ID_SEND_MAIL                40006
#define ID_AUTHOR_SITE              40007
#define ID_SCREEN_SAVER             40008
#define ID_ABOUT                    57664
#define ID_EXIT                     57665
#define ID_HELP_CONTENTS            57666

// Controls of the dialogs. A number stands for one thing in each dialog.
#define IDC_DIALOG_HELP             1009

// About box.
#define IDC_BAND_END                1001  // its top is the end of the coloured band
#define IDC_SYSTEM_INFORMATION      1002
#define IDC_LICENSED_TO             1003
#define IDC_VERSION                 1004
#define IDC_SITE                    1005

// Calendar pop-up.
#define IDC_NEXT_MONTH              1030
#define IDC_PREVIOUS_MONTH          1031

// Grep options.
#define IDC_SEARCH_TEXT             1007
#define IDC_FILE_TYPES              1008
#define IDC_SEARCH_FOLDER           1010
#define IDC_BROWSE_SEARCH_FOLDER    1011
#define IDC_MATCH_CASE              1012
#define IDC_SUBFOLDERS              1013
#define IDC_WHOLE_WORDS             1014
#define IDC_FILE_NAMES_ONLY         1015
#define IDC_REGULAR_EXPRESSION      1016
#define IDC_FUZZY                   1017
#define IDC_SAVE_SEARCH             1021
#define IDC_EDIT_FILE_TYPES         1022

// What the menu of its last button does to the list of file types.
#define ID_ADD_FILE_TYPE            2030
#define ID_REMOVE_FILE_TYPE         2031
#define ID_RESTORE_FILE_TYPES       2032

// Options. Its OK button is not IDOK, which is what Windows answers for a dialog that the program's end closes.
#define IDC_OPTIONS_OK              6
#define IDC_OPTION_TREE             1023
#define IDC_PAGE_PLACE              1024
#define IDC_LOGO_PLACE              1025

// Options, main page. The check boxes 1012 to 1019 stand in the order of their settings.
#define IDC_PICK_COLOUR             1011
#define IDC_AUTO_HIDE               1012
#define IDC_MONITOR_CLIPBOARD       1013
#define IDC_TOPMOST                 1014
#define IDC_SAVE_HISTORIES          1015
#define IDC_EXIT_UNASKED            1016
#define IDC_CONFIRM_END             1017
#define IDC_ENABLE_ENTER            1018
#define IDC_SAVE_PLACEMENT          1019
#define IDC_AUTO_RUN                1020
#define IDC_COLOUR_SWATCH           1025
#define IDC_CLEAR_HISTORIES         1042
#define IDC_BAR_COLOUR              1044
#define IDC_BAR_EDGE                1045
#define IDC_HISTORY_LENGTH          1046
#define IDC_HISTORY_LENGTH_SPIN     1047
#define IDC_HISTORY_LENGTH_FIRST    1046  // these are greyed together
#define IDC_HISTORY_LENGTH_LABEL    1048
#define IDC_HISTORY_LENGTH_LEAD     1049
#define IDC_HISTORY_LENGTH_UNIT     1050
#define IDC_HISTORY_LENGTH_LAST     1050
#define IDC_HIDE_DELAY_FIRST        1061
#define IDC_HIDE_DELAY_UNIT         1062
#define IDC_HIDE_DELAY              1063
#define IDC_HIDE_DELAY_LAST         1063
#define IDC_SHOW_CLOCK              1064
#define IDC_CLOCK_FORMAT_LABEL      1065
#define IDC_CLOCK_FORMAT            1066
#define IDC_CLOCK_SAMPLE            1067
#define IDC_TASK_APP_NAMES          1068

// Options, buttons beside a list.
#define IDC_MOVE_UP                 1030
#define IDC_MOVE_DOWN               1031
#define IDC_ADD                     1032
#define IDC_EDIT                    1033
#define IDC_DELETE                  1034

// Options, search command page.
#define IDC_COMMAND_COUNT           1001
#define IDC_PRIORITY_USER           1012
#define IDC_STANDARD_COMMANDS       1026
#define IDC_USER_COMMANDS           1027
#define IDC_STANDARD_LIST           1028
#define IDC_USER_LIST               1029
#define IDC_COPY                    1035
#define IDC_PASTE                   1036
#define IDC_COMMAND_DETAILS         1037
#define IDC_STANDARD_LIST_LABEL     1070
#define IDC_USER_LIST_LABEL         1071
#define IDC_UNCHECK_ALL             1042
#define IDC_CHECK_ALL               1043

// Editor of a user's search command.
#define IDC_INSERT_PLACEHOLDER      1032
#define IDC_PLACEHOLDERS            1038
#define IDC_COMMAND_NAME            1039
#define IDC_COMMAND_LINE            1040
#define IDC_COMMAND_COMMENT         1041
#define IDC_COMMAND_LINE_HINT       1072
#define IDC_PLACEHOLDER_MEANING     1073

// Options, launch menu page.
#define IDC_ITEM_COUNT              1048
#define IDC_BUTTONS_NOTE            1049
#define IDC_LAUNCH_LIST             1057
#define IDC_IMPORT                  1058

// Editor of a launch item.
#define IDC_KEEP_NAME               1012
#define IDC_PROGRAM                 1051
#define IDC_ARGUMENTS               1052
#define IDC_ITEM_NAME               1053
#define IDC_BROWSE_PROGRAM          1054
#define IDC_CHANGE_ICON             1055
#define IDC_WORKING_FOLDER          1059
#define IDC_BROWSE_WORKING_FOLDER   1060

// Icon picker.
#define IDC_BROWSE_ICON_FILE        1011
#define IDC_ICON_LIST_PLACE         1024
#define IDC_ICON_FILE               1039
#define IDC_ICON_LIST_LABEL         1048
#define IDC_ICON_LIST               1056

// Import of launch items.
#define IDC_IMPORT_SOURCE           1045
#define IDC_IMPORT_COUNT            1048
#define IDC_IMPORT_LIST             1057
#define IDC_IMPORT_PROGRESS         1069
#define IDC_IMPORT_STOP             1070

// Global hot keys.
#define HOTKEY_SHOW_BAR             1000
#define HOTKEY_LAUNCH_MENU          1001

// String table. The command entries 4001-4027 stand under their command identifiers.
#define IDS_REINSTALL               101
#define IDS_DIALOG_FAILED           102
#define IDS_USER_COMMAND_HEADER     103
#define IDS_DEFAULT_SELECTION_KEY   104
#define IDS_USER_SELECTION_KEY      105
#define IDS_BAD_USER_COMMAND        106
#define IDS_TOOL_NOT_FOUND          107
#define IDS_CLEAR_HISTORY           108
#define IDS_EVERYTHING_KEY          109
#define IDS_EMEDITOR_KEY            110
#define IDS_HIDEMARU_KEY            111
#define IDS_NO_COMMAND_SELECTED     112
#define IDS_TOO_MANY_SELECTED       113
#define IDS_NO_SEARCH_COMMAND       114
#define IDS_NO_HISTORY_LENGTH       115
#define IDS_CLEAR_HISTORIES         117
#define IDS_ITEM_COUNT              118
#define IDS_DELETE_ITEM             119
#define IDS_DELETE_ITEM_FAILED      120
#define IDS_FILE_NOT_FOUND          121
#define IDS_NOT_EXECUTABLE          122
#define IDS_FOLDER_NOT_FOUND        123
#define IDS_MAIL_NOTE               124
#define IDS_AUTO_HIDE_TAKEN         125
#define IDS_AUTO_HIDE_FAILED        126
#define IDS_AMPERSAND_IN_NAME       127
#define IDS_PRODUCT                 128
#define IDS_IMPORT_COUNT            129
#define IDS_CLOCK_TIME              130
#define IDS_CLOCK_SECONDS           131
#define IDS_CLOCK_TIME_DATE         132
#define IDS_CLOCK_SECONDS_DATE      133
#define IDS_CLOCK_DATE              134

// Texts of this program's own choosing.
#define IDS_NEEDS_64BIT_EDITION     200
#define IDS_SCREEN_TOO_NARROW       201
#define IDS_FONT_UPDATE_TEXT        202
#define IDS_FONT_UPDATE_CAPTION     203
#define IDS_BROWSE_FILE_ROW         204
#define IDS_BROWSE_FOLDER_ROW       205
#define IDS_CLEAR_HISTORY_ROW       206
#define IDS_NO_ROW                  207
#define IDS_ALL_FILES_FILTER        208
#define IDS_BROWSE_FOLDER_TITLE     209
#define IDS_BROWSE_FOLDER_PROMPT    210
#define IDS_COMMAND_BOX             211
#define IDS_SEARCH_BOX              212
#define IDS_MAIN_MENU               213
#define IDS_COMMAND_HISTORY         214
#define IDS_SEARCH_HISTORY          215
#define IDS_SEARCH_CHOOSER          216
#define IDS_RUN                     217
#define IDS_SEARCH                  218
#define IDS_CONTROL_PANEL           219
#define IDS_OPTIONS                 220
#define IDS_HELP                    221
#define IDS_EXIT                    222
#define IDS_SEARCH_SETTINGS         223
#define IDS_SCREEN_BECAME_NARROW    224
#define IDS_SESSION_QUESTION        225
#define IDS_SIGN_OUT_VERB           226
#define IDS_LOG_OFF_VERB            227
#define IDS_SHUT_DOWN_VERB          228
#define IDS_RESTART_VERB            229
#define IDS_LOG_OFF_ITEM            230
#define IDS_SECURITY_CENTER_ITEM    231
#define IDS_NO_TASK                 232
#define IDS_LAUNCH_SETTINGS         233
#define IDS_COMMAND_PROMPT_PARAMETERS 234
#define IDS_PREVIOUS_MONTH          235
#define IDS_NEXT_MONTH              236
#define IDS_EDITOR_SEARCH_TITLE     237
#define IDS_SEARCH_FOLDER_TITLE     238
#define IDS_SEARCH_FOLDER_PROMPT    239
#define IDS_MAIL_NOTE_CAPTION       240
#define IDS_RIGHTS                  241
#define IDS_HELP_FAILED             242
#define IDS_PICK_SEARCH_FOLDER      243
#define IDS_EDIT_FILE_TYPES         244
#define IDS_ADD_FILE_TYPE           245
#define IDS_REMOVE_FILE_TYPE        246
#define IDS_RESTORE_FILE_TYPES      247
#define IDS_OPTIONS_CAPTION         248
#define IDS_OPTIONS_MAIN            249
#define IDS_OPTIONS_COMMANDS        250
#define IDS_OPTIONS_LAUNCH          251
#define IDS_VERB_ADD                253
#define IDS_VERB_EDIT               254

// Options, main page.
#define IDS_EDGE_TOP                260
#define IDS_EDGE_BOTTOM             261
#define IDS_COLOUR_THEME            262
#define IDS_COLOUR_SYSTEM           263
#define IDS_COLOUR_USER             264
#define IDS_FORMAT_TIME             265
#define IDS_FORMAT_SECONDS          266
#define IDS_FORMAT_TIME_DATE        267
#define IDS_FORMAT_SECONDS_DATE     268
#define IDS_FORMAT_DATE             269
#define IDS_PICK_COLOUR             270
#define IDS_CLEAR_HISTORIES_TIP     271

// Options, search command page.
#define IDS_STANDARD_COMMANDS       280
#define IDS_USER_COMMANDS           281
#define IDS_COMMAND_COUNT           282
#define IDS_COMMAND_EDITOR_TITLE    283
#define IDS_NAME_COLUMN             284
#define IDS_SUMMARY_COLUMN          285
#define IDS_DETAIL_NAME             286
#define IDS_DETAIL_LINE             287
#define IDS_DETAIL_COMMENT          288
#define IDS_COMMAND_LINE_HINT       289
#define IDS_PLACEHOLDER_FIRST       290  // what each placeholder does, in the order in which they are offered
#define IDS_PLACEHOLDER_LAST        297
#define IDS_USER_FILE_UNREADABLE    298

// Editor of a launch item, and icon picker.
#define IDS_ITEM_EDITOR_TITLE       310
#define IDS_NO_ITEM_ICON            311
#define IDS_BROWSE_PROGRAM          312
#define IDS_PROGRAM_FILTER          313
#define IDS_WORKING_FOLDER_TITLE    314
#define IDS_WORKING_FOLDER_PROMPT   315
#define IDS_BROWSE_FILE_TIP         316
#define IDS_ICON_FILE_TITLE         317
#define IDS_ICON_FILE_FILTER        318

// Import of launch items.
#define IDS_IMPORT_START_MENU       330
#define IDS_IMPORT_COMMON_MENU      331
#define IDS_IMPORT_QUICK_LAUNCH     332
#define IDS_IMPORT_ELSEWHERE        333
#define IDS_IMPORT_FOLDER_PROMPT    334
#define IDS_IMPORT_PROGRESS         335
#define IDS_IMPORT_NONE             336

#define IDS_DELETE_COMMAND          1034
#define IDS_CONFIRM_EXIT            57665

// clang-format on
