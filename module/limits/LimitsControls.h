// Control ids of the limits dialog and its pages, for their templates and their code alike.
#pragma once

// clang-format off

#define IDD_LIMITS                 3351
#define IDC_LIMITS_TAB             5150

// The harmonic page: 13 rows, the fundamental alone, then two blocks of six. Heads, captions and units come once for each
// of the three.
#define IDD_LIMITS_HARMONIC        3358
#define IDC_HARMONIC_ROW           5426    // to 5438
#define IDC_HARMONIC_NOMINAL_HEAD  5458    // to 5460
#define IDC_HARMONIC_NOMINAL       5461    // to 5473
#define IDC_HARMONIC_UNIT_LEFT     5493    // the two blocks' units
#define IDC_HARMONIC_UNIT_RIGHT    5494
#define IDC_FUNDAMENTAL_UNIT       5495
#define IDC_HARMONIC_MAXW_HEAD     5496    // to 5498
#define IDC_HARMONIC_MAXW          5499    // to 5511
#define IDC_HARMONIC_MAXD_HEAD     5531    // to 5533
#define IDC_HARMONIC_MAXD          5534    // to 5546
#define IDC_HARMONIC_MAX_CAPTION   5566    // to 5568

// The power page. Heads and captions come for power factor, active, reactive and apparent power in this order.
#define IDD_LIMITS_POWER           3359
#define IDC_PF_GROUP               5300
#define IDC_AP_GROUP               5302
#define IDC_RP_GROUP               5303
#define IDC_VA_GROUP               5304
#define IDC_POWER_MINW_HEAD        5312
#define IDC_POWER_MAXW_HEAD        5316    // to 5319
#define IDC_POWER_MIND_HEAD        5328
#define IDC_POWER_MAXD_HEAD        5332    // to 5335
#define IDC_PF_MINW                5344
#define IDC_PF_MIND                5348
#define IDC_POWER_MIN_CAPTION      5352
#define IDC_POWER_NOMINAL_HEAD     5356    // to 5359
#define IDC_PF_NOMINAL             5368
#define IDC_AP_NOMINAL             5370
#define IDC_RP_NOMINAL             5371
#define IDC_VA_NOMINAL             5372
#define IDC_PF_UNIT                5380
#define IDC_AP_UNIT                5384
#define IDC_RP_UNIT                5385
#define IDC_VA_UNIT                5386
#define IDC_PF_MAXW                5392
#define IDC_AP_MAXW                5394
#define IDC_RP_MAXW                5395
#define IDC_VA_MAXW                5396
#define IDC_PF_MAXD                5404
#define IDC_AP_MAXD                5406
#define IDC_RP_MAXD                5407
#define IDC_VA_MAXD                5408
#define IDC_POWER_MAX_CAPTION      5416    // to 5419
