// Resource and control ids, for the resource script and the code.
#pragma once

// Dialogs, in the order in which the pages are created.
#define IDD_ABOUT 100
#define IDD_MAIN 102
#define IDD_CATEGORY 106
#define IDD_CHECKS 170
#define IDD_CHECK_FIELDS 171
#define IDD_CHECK_COMBOS 172
#define IDD_CHECK_LIST 173
#define IDD_PATH_FIELDS 107
#define IDD_COMBOS 174
#define IDD_EDIT_COMBOS 175
#define IDD_CHECK_COMBO 176

#define IDI_KORVANE 128
#define IDB_FIRST_TREE_IMAGE 132

// System-menu command of the About box.
#define IDM_ABOUT 16

// The main window.
#define IDC_TREE 1004
#define IDC_APPLY 1016
#define IDC_DIVIDER 1053
#define IDC_SKIN 1057
#define IDC_SPLASH 1062

// The About box.
#define IDC_ABOUT_TEXT 1064
#define IDC_ABOUT_NOTICE 1065
#define IDC_ABOUT_VERSION 1066

// The pages.
#define IDC_HEADER 1006
#define IDC_LIST 1007
#define IDC_CHECK_LIST 1009
#define IDC_NOTE 1024
#define IDC_CHECK1 1013
#define IDC_CHECK2 1018
#define IDC_CHECK3 1028
#define IDC_CHECK4 1032
#define IDC_CHECK5 1033
#define IDC_CHECK6 1034
#define IDC_CHECK7 1035
#define IDC_CHECK8 1036
#define IDC_CHECK9 1037
#define IDC_CHECK10 1038
#define IDC_LABEL1 1014
#define IDC_LABEL2 1019
#define IDC_LABEL3 1020
#define IDC_LABEL4 1039
#define IDC_LABEL5 1041
#define IDC_LABEL6 1046
#define IDC_EDIT1 1015
#define IDC_EDIT2 1017
#define IDC_EDIT3 1025
#define IDC_EDIT4 1042
#define IDC_EDIT5 1049
#define IDC_BROWSE1 1023
#define IDC_BROWSE2 1026
#define IDC_BROWSE3 1027
#define IDC_BROWSE4 1048
#define IDC_BROWSE5 1050
#define IDC_COMBO1 1021
#define IDC_COMBO2 1022
#define IDC_COMBO3 1029
#define IDC_COMBO4 1030
#define IDC_COMBO5 1031
#define IDC_COMBO6 1043
#define IDC_COLOUR_COMBO 1055
