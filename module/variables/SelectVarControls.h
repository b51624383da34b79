// Control and template ids of the select-variables dialog and its pages, for resource scripts and code alike.
#pragma once

// clang-format off

#define IDD_SELECTVAR           3354
#define IDC_SELECTVAR_TAB       6697
#define IDC_SELECTVAR_SPARE     6698    // a static that is emptied and hidden at start

#define IDD_SELECTVAR_GENERAL   3355
#define IDD_SELECTVAR_POWER     3356
#define IDD_SELECTVAR_HARMONIC  3367

// On every page. The four column buttons of a side are "all", L1, L2, L3.
#define IDC_PAGE_FRAME          6699
#define IDC_NET_GROUP           6712
#define IDC_NET_COLUMN          6713    // to 6716
#define IDC_LOAD_GROUP          6766
#define IDC_LOAD_COLUMN         6767    // to 6770

// First ids of each page; the rows follow each other, the phases follow by the number of rows.
#define IDC_GENERAL_CAPTION     6700    // to 6703
#define IDC_GENERAL_NET_BOX     6718    // to 6729
#define IDC_GENERAL_LOAD_BOX    6772    // to 6783
#define IDC_GENERAL_NET_ROW     6874    // to 6877
#define IDC_GENERAL_LOAD_ROW    6886    // to 6889, of which 6888 and 6889 exist

#define IDC_POWER_CAPTION       6910    // to 6913
#define IDC_POWER_NET_BOX       6922    // to 6933
#define IDC_POWER_LOAD_BOX      6970    // to 6981
#define IDC_POWER_NET_ROW       7066    // to 7069
#define IDC_POWER_LOAD_ROW      7078    // to 7081

#define IDC_HARMONIC_CAPTION    7206    // to 7218
#define IDC_HARMONIC_NET_ROW    7221    // to 7233
#define IDC_HARMONIC_NET_BOX    7236    // to 7274
#define IDC_HARMONIC_LOAD_ROW   7275    // to 7287
#define IDC_HARMONIC_LOAD_BOX   7288    // to 7326; order 5 (row 2) on L2 is 7288 + 2 + 13, which is 7303

// Every command of every page lies between these two.
#define IDC_SELECTION_FIRST     6700
#define IDC_SELECTION_LAST      7326
