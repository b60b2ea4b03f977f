// Spanish texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesSpanish[SK_MESSAGE_COUNT] = {
    L"Espacio de mensajes inicializado, se inicia el registro de mensajes.", // 1001
    L"Espacio de mensajes encontrado, se reanuda el registro de mensajes desde la última entrada.", // 1002
    L"Una discrepancia de versión provocó la inicialización, es posible que se hayan perdido algunos mensajes.", // 1003
    L"Una discrepancia en el tamaño de la memoria de mensajes provocó la inicialización, es posible que se hayan perdido algunos mensajes.", // 1004
    L"Una discrepancia en el tamaño máximo del índice de mensajes provocó la inicialización, es posible que se hayan perdido algunos mensajes.", // 1005
    L"Un puntero de escritura de mensajes dañado provocó la inicialización, es posible que se hayan perdido algunos mensajes.", // 1006
    L"Se han perdido entradas críticas de información de usuario.", // 1008
    L"No se encontró el ID de mensaje %1!d! (0x%1!x!) para la traducción, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Se recibió el comando de nueva exploración del núcleo.", // 1012
    L"Falló la unidad en la controladora %1!d! canal %2!d!.", // 1013
    L"Se ha eliminado la matriz %1!d!.", // 1014
    L"La matriz %1!d! ha pasado a estado crítico.", // 1015
    L"La matriz %1!d! ha pasado a estado sin conexión.", // 1016
    L"Se ha reanudado una tarea de reconstrucción en la matriz %1!d!.", // 1017
    L"Se ha completado una tarea de reconstrucción en la matriz %1!d!.", // 1018
    L"Ha fallado una tarea de reconstrucción en la matriz %1!d!.", // 1019
    L"Se ha reanudado una tarea de transformación en la matriz %1!d!.", // 1020
    L"Se ha completado una tarea de transformación en la matriz %1!d!.", // 1021
    L"Ha fallado una tarea de transformación en la matriz %1!d!.", // 1022
    L"Se ha reanudado una tarea de comprobación de coherencia en la matriz %1!d!.", // 1023
    L"Se ha completado una tarea de comprobación de coherencia en la matriz %1!d!.", // 1024
    L"Ha fallado una tarea de comprobación de coherencia en la matriz %1!d!.", // 1025
    L"Se ha reanudado una tarea de creación para la matriz %1!d!.", // 1026
    L"Se ha completado una tarea de creación para la matriz %1!d!.", // 1027
    L"Ha fallado una tarea de creación para la matriz %1!d!.", // 1028
    L"Unidad inicializada en la controladora %1!d! canal %2!d!.", // 1029
    L"Ha cambiado la prioridad de tareas de la matriz %1!d!.", // 1030
    L"Matriz %1!d! dividida, nueva matriz %2!d!.", // 1031
    L"La directiva de caché de la matriz %1!d! ha cambiado a LECTURA.", // 1034
    L"La directiva de caché de la matriz %1!d! ha cambiado a ESCRITURA.", // 1035
    L"La directiva de caché de la matriz %1!d! ha cambiado a SIN CACHÉ.", // 1036
    L"Cambio de configuración.", // 1037
    L"Nueva unidad conectada.", // 1038
    L"Unidad desconectada.", // 1039
    L"Tiempo de espera de IO agotado en la controladora %1!d! canal %2!d!.", // 1040
    L"Error de dispositivo en la controladora %1!d! canal %2!d!.", // 1041
    L"Dispositivo conectado en la controladora %1!d! canal %2!d!.", // 1042
    L"Dispositivo desconectado en la controladora %1!d! canal %2!d!.", // 1043
    L"Error de medio en la controladora %1!d! canal %2!d!.", // 1047
    L"Matriz %1!d!: se han perdido datos de escritura diferida.", // 1048
    L"Falló el dispositivo en la controladora %1!d! canal %2!d! línea %3!d!.", // 1049
    L"Falló el segundo intento de BBR, controladora %1!d! canal %2!d!.", // 1050
    L"Demasiados errores de BBR, la I/O falla, controladora %1!d! canal %2!d!.", // 1051
    L"Número de bloque bajo=0x%1!x!, alto=0x%2!x!.", // 1052
    L"Se ha reanudado una tarea de copia para la matriz %1!d!.", // 1053
    L"Se ha completado una tarea de copia para la matriz %1!d!.", // 1054
    L"Ha fallado una tarea de copia para la matriz %1!d!.", // 1055
    L"Error de medio irrecuperable en la matriz %1!d!, es posible que se hayan perdido datos.", // 1056
    L"Se detectó la inserción de un dispositivo en la controladora %1!d! canal %2!d!.", // 1057
    L"ERROR DE ASIGNACIÓN DE MEMORIA en la controladora %1!d! canal %2!d!, SE DESHABILITA EL CANAL.", // 1060
    L"El dispositivo SMART notifica UMBRAL SUPERADO en la controladora %1!d! canal %2!d!.", // 1061
    L"La directiva de caché de la matriz %1!d! ha cambiado a LECTURA/ESCRITURA.", // 1067
    L"El sistema está siendo administrado de forma remota por %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Ha finalizado la administración remota por %1!d!.%2!d!.%3!d!.%4!d!.", // 1069
    L"Se ha pausado una tarea de transformación en la matriz %1!d!.", // 1097
    L"Se ha pausado una tarea de comprobación de coherencia en la matriz %1!d!.", // 1098
    L"Se ha pausado una tarea de reconstrucción en la matriz %1!d!.", // 1099
    L"Se ha pausado una tarea de creación en la matriz %1!d!.", // 1100
    L"Se ha pausado una tarea de copia en la matriz %1!d!.", // 1101
    L"Se ha eliminado una tarea de transformación en la matriz %1!d!.", // 1102
    L"Se ha eliminado una tarea de comprobación de coherencia en la matriz %1!d!.", // 1103
    L"Se ha eliminado una tarea de reconstrucción en la matriz %1!d!.", // 1104
    L"Se ha eliminado una tarea de creación en la matriz %1!d!.", // 1105
    L"Se ha eliminado una tarea de copia, desvinculación correcta en la matriz %1!d!.", // 1106
    L"Se ha detenido una tarea de transformación en la matriz %1!d!.", // 1107
    L"Se ha detenido una tarea de comprobación de coherencia en la matriz %1!d!.", // 1108
    L"Se ha detenido una tarea de reconstrucción en la matriz %1!d!.", // 1109
    L"Se ha detenido una tarea de creación en la matriz %1!d!.", // 1110
    L"Se ha detenido una tarea de copia en la matriz %1!d!.", // 1111
    L"Matriz %1!d! dividida.", // 1112
    L"Se ha iniciado la pasada de exploración de matriz %1!d! en la matriz %2!d!.", // 1114
    L"Se ha completado la pasada de exploración de matriz %1!d! en la matriz %2!d!.", // 1115
    L"Exploración de matriz habilitada en la matriz %1!d!.", // 1116
    L"Exploración de matriz deshabilitada en la matriz %1!d!.", // 1117
    L"Descargando la imagen flash en la controladora %1!x!, porcentaje completado: %2!d!.", // 1128
    L"Descarga de la imagen flash en el IOC completada para la controladora %1!x!.", // 1129
    L"Error de medio reparado en la matriz %1!x!.", // 1130
    L"Unidad asignada como repuesto global en la controladora %1!d! canal %2!d!.", // 1132
    L"Unidad eliminada de la lista de repuestos globales en la controladora %1!d! canal %2!d!.", // 1133
    L"Incoherencia reparada en la matriz %1!x!.", // 1134
    L"Matriz %1!d! oculta.", // 1135
    L"Matriz %1!d! visible de nuevo.", // 1136
    L"Error de reconstrucción en la matriz %1!d! debido a un error de lectura en el disco de origen.", // 1137
    L"Se ha iniciado una tarea de creación para la matriz %1!d!.", // 1138
    L"Se ha iniciado una tarea de reconstrucción para la matriz %1!d!.", // 1139
    L"Se ha iniciado una tarea de transformación para la matriz %1!d!.", // 1140
    L"Se ha iniciado una tarea de comprobación de coherencia para la matriz %1!d!.", // 1141
    L"Caché de escritura diferida (write-back) del disco habilitada en la controladora %1!d! canal %2!d!.", // 1142
    L"Caché de escritura diferida (write-back) del disco deshabilitada en la controladora %1!d! canal %2!d!.", // 1143
    L"Lectura anticipada del disco habilitada en la controladora %1!d! canal %2!d!.", // 1144
    L"Lectura anticipada del disco deshabilitada en la controladora %1!d! canal %2!d!.", // 1145
    L"Se detectó un error en la descarga de la imagen de firmware del IOC en la controladora %1!d! en el desplazamiento %2!x!.", // 1147
    L"Cambio de estado de LED perdido para un dispositivo en la controladora %1!d! canal %2!d!.", // 1148
    L"Cambio de estado de LED perdido para la matriz %1!d!.", // 1149
    L"Una solicitud del usuario ha activado el estado de identificación para la controladora %1!d!, ranura %2!d!.", // 1150
    L"Una solicitud del usuario ha activado la identificación de un volumen en la controladora %1!d!, ranura %2!d!.", // 1151
    L"Una solicitud del usuario ha borrado el estado de identificación para la controladora %1!d!, ranura %2!d!.", // 1152
    L"Recuperación forzada de la matriz sin conexión %1!d!.", // 1153
    L"Repuesto dedicado asignado a la matriz %3!d! en la controladora %1!d! canal %2!d!.", // 1154
    L"Repuesto dedicado quitado de la matriz %3!d! en la controladora %1!d! canal %2!d!.", // 1155
    L"No se admite la gestión del alojamiento para la controladora %1!d!.", // 1156
    L"Se borró una solicitud huérfana de estado de identificación para la controladora %1!d!, ranura %2!d!.", // 1157
    L"El usuario ha eliminado una tarea de reconstrucción en la matriz %1!d!.", // 1158
    L"Disco perforado en la controladora %1!d! canal %2!d!.", // 1159
    L"Error al perforar el disco en la controladora %1!d! canal %2!d!.", // 1160
    L"Se ha pausado una tarea de borrado seguro en la matriz %1!d!.", // 1165
    L"Se ha reanudado una tarea de borrado seguro en la matriz %1!d!.", // 1166
    L"Ha fallado una tarea de borrado seguro para la matriz %1!d!.", // 1167
    L"Se ha completado una tarea de borrado seguro para la matriz %1!d!.", // 1168
    L"Se ha detenido una tarea de borrado seguro en la matriz %1!d!.", // 1169
    L"Se ha eliminado una tarea de borrado seguro en la matriz %1!d!.", // 1170
    L"Se ha insertado un dispositivo desconocido nuevo en la controladora %1!d! canal %2!d!.", // 1171
    L"Se ha reanudado una tarea de qsync en la matriz %1!d!.", // 1172
    L"Se ha completado una tarea de qsync en la matriz %1!d!.", // 1173
    L"Ha fallado una tarea de qsync en la matriz %1!d!.", // 1174
    L"Se ha detenido una tarea de qsync en la matriz %1!d!.", // 1175
    L"Se ha eliminado una tarea de qsync en la matriz %1!d!.", // 1176
    L"Se ha pausado una tarea de qsync en la matriz %1!d!.", // 1177
    L"Se ha iniciado una tarea de qsync para la matriz %1!d!.", // 1178
    L"qsync habilitado en la matriz %1!d!.", // 1179
    L"qsync deshabilitado en la matriz %1!d!.", // 1180
    L"Metadatos de la unidad borrados en la controladora %1!d! canal %2!d!.", // 1181
    L"Una solicitud del usuario ha establecido el estado extendido 1 (OKAY) del LED para la controladora %1!d!, ranura %2!d!.", // 1182
    L"Una solicitud del usuario ha establecido el estado extendido 2 (REBUILDING) del LED para la controladora %1!d!, ranura %2!d!.", // 1183
    L"Una solicitud del usuario ha establecido el estado extendido 3 (FAILED) del LED para la controladora %1!d!, ranura %2!d!.", // 1184
    L"Una solicitud del usuario ha establecido el estado extendido 4 (IDENTIFY) del LED para la controladora %1!d!, ranura %2!d!.", // 1185
    L"Una solicitud del usuario ha establecido el estado extendido 5 (UNDEFINED) del LED para la controladora %1!d!, ranura %2!d!.", // 1186
    L"Una solicitud del usuario ha establecido el estado extendido 6 (UNDEFINED) del LED para la controladora %1!d!, ranura %2!d!.", // 1187
    L"Una solicitud del usuario ha establecido el estado extendido 7 (UNDEFINED) del LED para la controladora %1!d!, ranura %2!d!.", // 1188
    L"Una solicitud del usuario ha establecido el estado extendido 8 (UNDEFINED) del LED para la controladora %1!d!, ranura %2!d!.", // 1189
    L"Una solicitud del usuario ha establecido el estado extendido 9 (UNDEFINED) del LED para la controladora %1!d!, ranura %2!d!.", // 1190
    L"Una solicitud del usuario ha establecido el estado extendido 10 (UNDEFINED) del LED para la controladora %1!d!, ranura %2!d!.", // 1191
    L"Una solicitud del usuario ha restaurado el estado del LED para la controladora %1!d!, ranura %2!d!.", // 1192
};
// clang-format on
