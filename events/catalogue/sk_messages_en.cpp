// English texts of the driver's messages, one per row of the message table, in its
// order. Inserts are %n!f!: parameter n, printed with the conversion f.

#include "events/sk_message_catalogue.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesEnglish[SK_MESSAGE_COUNT] = {
    L"Initialized messages space, starting message logging.", // 1001
    L"Found message space, starting message logging from last entry.", // 1002
    L"Version mismatch caused initialization, some messages may have been lost.", // 1003
    L"Message memory size mismatch caused initialization, some messages may have been lost.", // 1004
    L"Message maximum index size mismatch caused initialization, some messages may have been lost.", // 1005
    L"Corrupted message put pointer caused initialization, some messages may have been lost.", // 1006
    L"Lost critical user information entries.", // 1008
    L"Could not find message ID %1!d! (0x%1!x!) for translation, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Core rescan command received.", // 1012
    L"Drive failed on controller %1!d! channel %2!d!.", // 1013
    L"Array %1!d! has been deleted.", // 1014
    L"Array %1!d! has gone critical.", // 1015
    L"Array %1!d! has gone offline.", // 1016
    L"A rebuild task has resumed on Array %1!d!.", // 1017
    L"A rebuild task has completed on Array %1!d!.", // 1018
    L"A rebuild task has failed on Array %1!d!.", // 1019
    L"A transform task has resumed on Array %1!d!.", // 1020
    L"A transform task has completed on Array %1!d!.", // 1021
    L"A transform task has failed on Array %1!d!.", // 1022
    L"A check consistency task has resumed on Array %1!d!.", // 1023
    L"A check consistency task has completed on Array %1!d!.", // 1024
    L"A check consistency task has failed on Array %1!d!.", // 1025
    L"A create task has resumed for Array %1!d!.", // 1026
    L"A create task has completed for Array %1!d!.", // 1027
    L"A create task has failed for Array %1!d!.", // 1028
    L"Drive Initialized on controller %1!d! channel %2!d!.", // 1029
    L"Array %1!d! Task Priority has changed.", // 1030
    L"Array %1!d! Split, New Array %2!d!.", // 1031
    L"Array %1!d! cache policy change to READ.", // 1034
    L"Array %1!d! cache policy change to WRITE.", // 1035
    L"Array %1!d! cache policy change to NO CACHE.", // 1036
    L"Config Change.", // 1037
    L"New Drive Connected.", // 1038
    L"Drive Disconnected.", // 1039
    L"IO timeout on controller %1!d! channel %2!d!.", // 1040
    L"Device error on controller %1!d! channel %2!d!.", // 1041
    L"Device connected on controller %1!d! channel %2!d!.", // 1042
    L"Device disconnected on controller %1!d! channel %2!d!.", // 1043
    L"Medium error on controller %1!d! channel %2!d!.", // 1047
    L"Array %1!d! Delayed write data lost.", // 1048
    L"Device failed on controller %1!d! channel %2!d! line %3!d!.", // 1049
    L"BBR second attempt failed, controller %1!d! channel %2!d!.", // 1050
    L"Too many BBR failure, failing I/O, controller %1!d! channel %2!d!.", // 1051
    L"Block number low=0x%1!x!, high=0x%2!x!.", // 1052
    L"A copy task has resumed for Array %1!d!.", // 1053
    L"A copy task has completed for Array %1!d!.", // 1054
    L"A copy task has failed for Array %1!d!.", // 1055
    L"Non recoverable medium error on Array %1!d!, Data may be lost.", // 1056
    L"Device insertion detected on controller %1!d! channel %2!d!.", // 1057
    L"MEMORY MAPPING FAILURE on controller %1!d! channel %2!d! DISABLE CHANNEL.", // 1060
    L"SMART Device reports THRESHOLD EXCEEDED on controller %1!d! channel %2!d!.", // 1061
    L"Array %1!d! cache policy change to READ/WRITE.", // 1067
    L"System is being remotely managed by %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Remote management by %1!d!.%2!d!.%3!d!.%4!d! has ended.", // 1069
    L"A transform task has paused on Array %1!d!.", // 1097
    L"A check consistency task has paused on Array %1!d!.", // 1098
    L"A rebuild task has paused on Array %1!d!.", // 1099
    L"A create task has paused on Array %1!d!.", // 1100
    L"A copy task has paused on Array %1!d!.", // 1101
    L"A transform task has been removed on Array %1!d!.", // 1102
    L"A check consistency task has been removed on Array %1!d!.", // 1103
    L"A rebuild task has been removed on Array %1!d!.", // 1104
    L"A create task has been removed on Array %1!d!.", // 1105
    L"A copy task has been removed, unlink successful on Array %1!d!.", // 1106
    L"A transform task has shutdown on Array %1!d!.", // 1107
    L"A check consistency task has shutdown on Array %1!d!.", // 1108
    L"A rebuild task has shutdown on Array %1!d!.", // 1109
    L"A create task has shutdown on Array %1!d!.", // 1110
    L"A copy task has shutdown on Array %1!d!.", // 1111
    L"Array %1!d! Split.", // 1112
    L"Array scan pass %1!d! has started on Array %2!d!.", // 1114
    L"Array scan pass %1!d! has completed on Array %2!d!.", // 1115
    L"Enable array scan on Array %1!d!.", // 1116
    L"Disable array scan on Array %1!d!.", // 1117
    L"Downloading flash image to controller %1!x!, percent complete %2!d!.", // 1128
    L"Downloading flash image to IOC completed to controller %1!x!.", // 1129
    L"Repaired medium error on Array %1!x!.", // 1130
    L"Drive assigned as global spare on controller %1!d! channel %2!d!.", // 1132
    L"Drive removed from global spare list on controller %1!d! channel %2!d!.", // 1133
    L"Repaired inconsistency on Array %1!x!.", // 1134
    L"Hid Array %1!d!.", // 1135
    L"Un-hid Array %1!d!.", // 1136
    L"Rebuild failed on array %1!d! due to read error on source disk.", // 1137
    L"A create task has been initiated for Array %1!d!.", // 1138
    L"A rebuild task has been initiated for Array %1!d!.", // 1139
    L"A transform task has been initiated for Array %1!d!.", // 1140
    L"A check consistency task has been initiated for Array %1!d!.", // 1141
    L"Disk write back cache enabled on controller %1!d! channel %2!d!.", // 1142
    L"Disk write back cache disabled on controller %1!d! channel %2!d!.", // 1143
    L"Disk Read Ahead enabled on controller %1!d! channel %2!d!.", // 1144
    L"Disk Read Ahead disabled on controller %1!d! channel %2!d!.", // 1145
    L"IOC firmware image download failure detected on controller %1!d! at offset %2!x!.", // 1147
    L"Missed LED state change for device on controller %1!d! channel %2!d!.", // 1148
    L"Missed LED state change for array %1!d!.", // 1149
    L"A user request has set identify state for controller %1!d!, slot %2!d!.", // 1150
    L"A user request has set identify for a volume on controller %1!d!, slot %2!d!.", // 1151
    L"A user request has cleared identify state for controller %1!d!, slot %2!d!.", // 1152
    L"Forced Recovery of Offline Array %1!d!.", // 1153
    L"Array %3!d! assigned dedicated spare on controller %1!d! channel %2!d!.", // 1154
    L"Array %3!d! removed dedicated spare on controller %1!d! channel %2!d!.", // 1155
    L"Enclosure management for controller %1!d! not supported.", // 1156
    L"Cleared orphaned identify state request for controller %1!d!, slot %2!d!.", // 1157
    L"A rebuild task has been removed by user on Array %1!d!.", // 1158
    L"Punctured disk on controller %1!d! channel %2!d!.", // 1159
    L"Failed to puncture disk on controller %1!d! channel %2!d!.", // 1160
    L"A secure erase task has paused on Array %1!d!.", // 1165
    L"A secure erase task has resumed on Array %1!d!.", // 1166
    L"A secure erase task has failed for Array %1!d!.", // 1167
    L"A secure erase task has completed for Array %1!d!.", // 1168
    L"A secure erase task has shutdown on Array %1!d!.", // 1169
    L"A secure erase task has been removed on Array %1!d!.", // 1170
    L"A new unknown device was inserted on controller %1!d! channel %2!d!.", // 1171
    L"A qsync task has resumed on Array %1!d!.", // 1172
    L"A qsync task has completed on Array %1!d!.", // 1173
    L"A qsync task has failed on Array %1!d!.", // 1174
    L"A qsync task has shutdown on Array %1!d!.", // 1175
    L"A qsync task has been removed on Array %1!d!.", // 1176
    L"A qsync task has paused on Array %1!d!.", // 1177
    L"A qsync task has been initiated for Array %1!d!.", // 1178
    L"Enable qsync on Array %1!d!.", // 1179
    L"Disable qsync on Array %1!d!.", // 1180
    L"Drive metadata cleared on controller %1!d! channel %2!d!.", // 1181
    L"A user request has set LED eXtended state 1 (OKAY) for controller %1!d!, slot %2!d!.", // 1182
    L"A user request has set LED eXtended state 2 (REBUILDING) for controller %1!d!, slot %2!d!.", // 1183
    L"A user request has set LED eXtended state 3 (FAILED) for controller %1!d!, slot %2!d!.", // 1184
    L"A user request has set LED eXtended state 4 (IDENTIFY) for controller %1!d!, slot %2!d!.", // 1185
    L"A user request has set LED eXtended state 5 (UNDEFINED) for controller %1!d!, slot %2!d!.", // 1186
    L"A user request has set LED eXtended state 6 (UNDEFINED) for controller %1!d!, slot %2!d!.", // 1187
    L"A user request has set LED eXtended state 7 (UNDEFINED) for controller %1!d!, slot %2!d!.", // 1188
    L"A user request has set LED eXtended state 8 (UNDEFINED) for controller %1!d!, slot %2!d!.", // 1189
    L"A user request has set LED eXtended state 9 (UNDEFINED) for controller %1!d!, slot %2!d!.", // 1190
    L"A user request has set LED eXtended state 10 (UNDEFINED) for controller %1!d!, slot %2!d!.", // 1191
    L"A user request has restored led LED state for controller %1!d!, slot %2!d!.", // 1192
};
// clang-format on
