// Ids of the host's string table that the device modules use, for KZLoadString; also read by the resource compiler.
// "%d" and "%s" behind an id name the printf arguments that its text takes.
#pragma once

// Measured quantities
#define KZS_POWER_FACTOR 133
#define KZS_FREQUENCY 135
#define KZS_CURRENT 160
#define KZS_APPARENT_POWER 241
#define KZS_PHASE_VOLTAGE 342
#define KZS_CURRENT_DISTORTION 347
#define KZS_REACTIVE_POWER 933
#define KZS_ACTIVE_POWER 24535

// Families of quantities and the two sides of a filter
#define KZS_HARMONIC_ORDER 564  // %d: the order
#define KZS_HARMONIC_CURRENTS 809
#define KZS_FUNDAMENTAL 816
#define KZS_GENERAL 825
#define KZS_POWERS 24534
#define KZS_LOAD_SIDE 35651
#define KZS_NET_SIDE 35652

// Buttons
#define KZS_ALL 183
#define KZS_OK 311
#define KZS_CANCEL 312

// Titles
#define KZS_SELECT_VARIABLES 196
#define KZS_DEVICE_TITLE 523    // %s: the model
#define KZS_UNITS_TITLE 532     // %s: the model
#define KZS_LIMITS_TITLE 32903  // %s: the model

// Choice of variables
#define KZS_MAX_VARIABLES 197  // %d: the most variables, 2 or more
#define KZS_NO_SUCH_VARIABLES 32239
#define KZS_MAX_ONE_VARIABLE 32336

// Failures
#define KZS_OPERATION_FAILED 40200
#define KZS_OUT_OF_MEMORY 40201
#define KZS_PAGES_NOT_OPENED 40202

// A device's identity
#define KZS_DEVICE_INFORMATION 282
#define KZS_DEVICE_NUMBER 283
#define KZS_DEVICE_DESCRIPTION 284
#define KZS_DEVICE_MODEL 285
#define KZS_DEVICE_VERSION 286
#define KZS_DEVICE_IDENTIFIER 290
#define KZS_DEVICE_SERIAL_NUMBER 32314
#define KZS_DEVICE_RANGE 35703

// A filter's settings
#define KZS_ALGORITHM_FIRST 32044
#define KZS_STATUS_ON 32179
#define KZS_STATUS_OFF 32180
#define KZS_STATUS 35661
#define KZS_WORKING_MODE 35662
#define KZS_FILTERED_HARMONICS 35663
#define KZS_TRANSFORMER_RATIO 35664
#define KZS_MINIMUM_CURRENT 35665
#define KZS_ALGORITHM 35704
#define KZS_NUMBER_OF_UNITS 35705
#define KZS_MODE_FIRST 35744
#define KZS_MODE_SECOND 35745
#define KZS_MODE_THIRD 35746
#define KZS_MODE_FOURTH 35747
#define KZS_ALGORITHM_SECOND 35748
#define KZS_ALGORITHM_THIRD 35749
#define KZS_CONFIRM_WRITE 326

// Checks of the settings
#define KZS_FIELD_EMPTY 32254
#define KZS_OUT_OF_RANGE 32926  // %d %d: the lowest and the highest value

// Units and decimals
#define KZS_UNITS_ACTIVE_APPARENT 399
#define KZS_UNITS_REACTIVE 400
#define KZS_NO_DECIMALS 403
#define KZS_ONE_DECIMAL 404  // %d: 1
#define KZS_UNIT 407
#define KZS_DECIMALS 408
#define KZS_SEVERAL_DECIMALS 32330  // %d: 2 or more

// Columns of the limits
#define KZS_NOMINAL 334
#define KZS_WARNING_LIMIT 335
#define KZS_ALARM_LIMIT 336
#define KZS_MAXIMUM 803
#define KZS_POWER_FACTOR_MINIMUM 916
#define KZS_POWER_FACTOR_MAXIMUM 917

// Fields of the limits, as messages name them
#define KZS_FIELD_MAXW 32272
#define KZS_FIELD_MINW 32273
#define KZS_FIELD_MAXD 32274
#define KZS_FIELD_MIND 32275
#define KZS_FIELD_NOMINAL 32276

// Checks of the limits
#define KZS_NOT_A_NUMBER 349
#define KZS_LIMIT_RANGE 351
#define KZS_LIMITS_ORDER 352
#define KZS_PERCENTAGE_RANGE 563
#define KZS_CURRENT_BELOW_ZERO 817
#define KZS_POWER_FACTOR_RANGE 911
#define KZS_POWER_FACTOR_BANDS 915
#define KZS_POWER_FACTOR_NOMINAL 32277
