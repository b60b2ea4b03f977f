// Brazilian Portuguese texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesPortugueseBrazil[SK_MESSAGE_COUNT] = {
    L"Espaço de mensagens inicializado, iniciando o registro de mensagens.", // 1001
    L"Espaço de mensagens encontrado, iniciando o registro de mensagens a partir da última entrada.", // 1002
    L"Uma incompatibilidade de versão causou a inicialização, algumas mensagens podem ter sido perdidas.", // 1003
    L"Uma incompatibilidade no tamanho da memória de mensagens causou a inicialização, algumas mensagens podem ter sido perdidas.", // 1004
    L"Uma incompatibilidade no tamanho máximo do índice de mensagens causou a inicialização, algumas mensagens podem ter sido perdidas.", // 1005
    L"Um ponteiro de gravação de mensagens corrompido causou a inicialização, algumas mensagens podem ter sido perdidas.", // 1006
    L"Entradas críticas de informações do usuário foram perdidas.", // 1008
    L"Não foi possível encontrar a ID de mensagem %1!d! (0x%1!x!) para tradução, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Comando de nova varredura do núcleo recebido.", // 1012
    L"Falha da unidade na controladora %1!d! canal %2!d!.", // 1013
    L"A matriz %1!d! foi excluída.", // 1014
    L"A matriz %1!d! entrou em estado crítico.", // 1015
    L"A matriz %1!d! ficou offline.", // 1016
    L"Uma tarefa de reconstrução foi retomada na matriz %1!d!.", // 1017
    L"Uma tarefa de reconstrução foi concluída na matriz %1!d!.", // 1018
    L"Uma tarefa de reconstrução falhou na matriz %1!d!.", // 1019
    L"Uma tarefa de transformação foi retomada na matriz %1!d!.", // 1020
    L"Uma tarefa de transformação foi concluída na matriz %1!d!.", // 1021
    L"Uma tarefa de transformação falhou na matriz %1!d!.", // 1022
    L"Uma tarefa de verificação de consistência foi retomada na matriz %1!d!.", // 1023
    L"Uma tarefa de verificação de consistência foi concluída na matriz %1!d!.", // 1024
    L"Uma tarefa de verificação de consistência falhou na matriz %1!d!.", // 1025
    L"Uma tarefa de criação foi retomada para a matriz %1!d!.", // 1026
    L"Uma tarefa de criação foi concluída para a matriz %1!d!.", // 1027
    L"Uma tarefa de criação falhou para a matriz %1!d!.", // 1028
    L"Unidade inicializada na controladora %1!d! canal %2!d!.", // 1029
    L"A prioridade de tarefas da matriz %1!d! foi alterada.", // 1030
    L"Matriz %1!d! dividida, nova matriz %2!d!.", // 1031
    L"A política de cache da matriz %1!d! foi alterada para LEITURA.", // 1034
    L"A política de cache da matriz %1!d! foi alterada para GRAVAÇÃO.", // 1035
    L"A política de cache da matriz %1!d! foi alterada para SEM CACHE.", // 1036
    L"Alteração de configuração.", // 1037
    L"Nova unidade conectada.", // 1038
    L"Unidade desconectada.", // 1039
    L"Tempo limite de IO esgotado na controladora %1!d! canal %2!d!.", // 1040
    L"Erro de dispositivo na controladora %1!d! canal %2!d!.", // 1041
    L"Dispositivo conectado na controladora %1!d! canal %2!d!.", // 1042
    L"Dispositivo desconectado na controladora %1!d! canal %2!d!.", // 1043
    L"Erro de mídia na controladora %1!d! canal %2!d!.", // 1047
    L"Matriz %1!d!: dados de gravação adiada perdidos.", // 1048
    L"Falha do dispositivo na controladora %1!d! canal %2!d! linha %3!d!.", // 1049
    L"A segunda tentativa de BBR falhou, controladora %1!d! canal %2!d!.", // 1050
    L"Excesso de falhas de BBR, a I/O falhou, controladora %1!d! canal %2!d!.", // 1051
    L"Número do bloco baixo=0x%1!x!, alto=0x%2!x!.", // 1052
    L"Uma tarefa de cópia foi retomada para a matriz %1!d!.", // 1053
    L"Uma tarefa de cópia foi concluída para a matriz %1!d!.", // 1054
    L"Uma tarefa de cópia falhou para a matriz %1!d!.", // 1055
    L"Erro de mídia irrecuperável na matriz %1!d!, dados podem ter sido perdidos.", // 1056
    L"Inserção de dispositivo detectada na controladora %1!d! canal %2!d!.", // 1057
    L"FALHA NO MAPEAMENTO DE MEMÓRIA na controladora %1!d! canal %2!d!, DESATIVANDO O CANAL.", // 1060
    L"O dispositivo SMART relata LIMITE EXCEDIDO na controladora %1!d! canal %2!d!.", // 1061
    L"A política de cache da matriz %1!d! foi alterada para LEITURA/GRAVAÇÃO.", // 1067
    L"O sistema está sendo gerenciado remotamente por %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"O gerenciamento remoto por %1!d!.%2!d!.%3!d!.%4!d! foi encerrado.", // 1069
    L"Uma tarefa de transformação foi pausada na matriz %1!d!.", // 1097
    L"Uma tarefa de verificação de consistência foi pausada na matriz %1!d!.", // 1098
    L"Uma tarefa de reconstrução foi pausada na matriz %1!d!.", // 1099
    L"Uma tarefa de criação foi pausada na matriz %1!d!.", // 1100
    L"Uma tarefa de cópia foi pausada na matriz %1!d!.", // 1101
    L"Uma tarefa de transformação foi removida na matriz %1!d!.", // 1102
    L"Uma tarefa de verificação de consistência foi removida na matriz %1!d!.", // 1103
    L"Uma tarefa de reconstrução foi removida na matriz %1!d!.", // 1104
    L"Uma tarefa de criação foi removida na matriz %1!d!.", // 1105
    L"Uma tarefa de cópia foi removida, desvinculação bem-sucedida na matriz %1!d!.", // 1106
    L"Uma tarefa de transformação foi encerrada na matriz %1!d!.", // 1107
    L"Uma tarefa de verificação de consistência foi encerrada na matriz %1!d!.", // 1108
    L"Uma tarefa de reconstrução foi encerrada na matriz %1!d!.", // 1109
    L"Uma tarefa de criação foi encerrada na matriz %1!d!.", // 1110
    L"Uma tarefa de cópia foi encerrada na matriz %1!d!.", // 1111
    L"Matriz %1!d! dividida.", // 1112
    L"A passagem %1!d! da varredura de matriz foi iniciada na matriz %2!d!.", // 1114
    L"A passagem %1!d! da varredura de matriz foi concluída na matriz %2!d!.", // 1115
    L"Varredura de matriz ativada na matriz %1!d!.", // 1116
    L"Varredura de matriz desativada na matriz %1!d!.", // 1117
    L"Baixando a imagem flash para a controladora %1!x!, porcentagem concluída: %2!d!.", // 1128
    L"Download da imagem flash para o IOC concluído na controladora %1!x!.", // 1129
    L"Erro de mídia reparado na matriz %1!x!.", // 1130
    L"Unidade atribuída como sobressalente global na controladora %1!d! canal %2!d!.", // 1132
    L"Unidade removida da lista de sobressalentes globais na controladora %1!d! canal %2!d!.", // 1133
    L"Inconsistência reparada na matriz %1!x!.", // 1134
    L"Matriz %1!d! ocultada.", // 1135
    L"Matriz %1!d! reexibida.", // 1136
    L"A reconstrução falhou na matriz %1!d! devido a um erro de leitura no disco de origem.", // 1137
    L"Uma tarefa de criação foi iniciada para a matriz %1!d!.", // 1138
    L"Uma tarefa de reconstrução foi iniciada para a matriz %1!d!.", // 1139
    L"Uma tarefa de transformação foi iniciada para a matriz %1!d!.", // 1140
    L"Uma tarefa de verificação de consistência foi iniciada para a matriz %1!d!.", // 1141
    L"Cache de gravação write-back do disco ativado na controladora %1!d! canal %2!d!.", // 1142
    L"Cache de gravação write-back do disco desativado na controladora %1!d! canal %2!d!.", // 1143
    L"Leitura antecipada do disco ativada na controladora %1!d! canal %2!d!.", // 1144
    L"Leitura antecipada do disco desativada na controladora %1!d! canal %2!d!.", // 1145
    L"Falha no download da imagem de firmware do IOC detectada na controladora %1!d! no deslocamento %2!x!.", // 1147
    L"Alteração de estado do LED perdida para o dispositivo na controladora %1!d! canal %2!d!.", // 1148
    L"Alteração de estado do LED perdida para a matriz %1!d!.", // 1149
    L"Uma solicitação do usuário definiu o estado de identificação para a controladora %1!d!, slot %2!d!.", // 1150
    L"Uma solicitação do usuário definiu a identificação de um volume na controladora %1!d!, slot %2!d!.", // 1151
    L"Uma solicitação do usuário limpou o estado de identificação para a controladora %1!d!, slot %2!d!.", // 1152
    L"Recuperação forçada da matriz offline %1!d!.", // 1153
    L"Unidade sobressalente dedicada atribuída à matriz %3!d! na controladora %1!d! canal %2!d!.", // 1154
    L"Unidade sobressalente dedicada removida da matriz %3!d! na controladora %1!d! canal %2!d!.", // 1155
    L"O gerenciamento de gabinete não é compatível com a controladora %1!d!.", // 1156
    L"Solicitação órfã de estado de identificação limpa para a controladora %1!d!, slot %2!d!.", // 1157
    L"Uma tarefa de reconstrução foi removida pelo usuário na matriz %1!d!.", // 1158
    L"Disco perfurado na controladora %1!d! canal %2!d!.", // 1159
    L"Falha ao perfurar o disco na controladora %1!d! canal %2!d!.", // 1160
    L"Uma tarefa de apagamento seguro foi pausada na matriz %1!d!.", // 1165
    L"Uma tarefa de apagamento seguro foi retomada na matriz %1!d!.", // 1166
    L"Uma tarefa de apagamento seguro falhou para a matriz %1!d!.", // 1167
    L"Uma tarefa de apagamento seguro foi concluída para a matriz %1!d!.", // 1168
    L"Uma tarefa de apagamento seguro foi encerrada na matriz %1!d!.", // 1169
    L"Uma tarefa de apagamento seguro foi removida na matriz %1!d!.", // 1170
    L"Um novo dispositivo desconhecido foi inserido na controladora %1!d! canal %2!d!.", // 1171
    L"Uma tarefa qsync foi retomada na matriz %1!d!.", // 1172
    L"Uma tarefa qsync foi concluída na matriz %1!d!.", // 1173
    L"Uma tarefa qsync falhou na matriz %1!d!.", // 1174
    L"Uma tarefa qsync foi encerrada na matriz %1!d!.", // 1175
    L"Uma tarefa qsync foi removida na matriz %1!d!.", // 1176
    L"Uma tarefa qsync foi pausada na matriz %1!d!.", // 1177
    L"Uma tarefa qsync foi iniciada para a matriz %1!d!.", // 1178
    L"qsync ativado na matriz %1!d!.", // 1179
    L"qsync desativado na matriz %1!d!.", // 1180
    L"Metadados da unidade limpos na controladora %1!d! canal %2!d!.", // 1181
    L"Uma solicitação do usuário definiu o estado estendido 1 (OKAY) do LED para a controladora %1!d!, slot %2!d!.", // 1182
    L"Uma solicitação do usuário definiu o estado estendido 2 (REBUILDING) do LED para a controladora %1!d!, slot %2!d!.", // 1183
    L"Uma solicitação do usuário definiu o estado estendido 3 (FAILED) do LED para a controladora %1!d!, slot %2!d!.", // 1184
    L"Uma solicitação do usuário definiu o estado estendido 4 (IDENTIFY) do LED para a controladora %1!d!, slot %2!d!.", // 1185
    L"Uma solicitação do usuário definiu o estado estendido 5 (UNDEFINED) do LED para a controladora %1!d!, slot %2!d!.", // 1186
    L"Uma solicitação do usuário definiu o estado estendido 6 (UNDEFINED) do LED para a controladora %1!d!, slot %2!d!.", // 1187
    L"Uma solicitação do usuário definiu o estado estendido 7 (UNDEFINED) do LED para a controladora %1!d!, slot %2!d!.", // 1188
    L"Uma solicitação do usuário definiu o estado estendido 8 (UNDEFINED) do LED para a controladora %1!d!, slot %2!d!.", // 1189
    L"Uma solicitação do usuário definiu o estado estendido 9 (UNDEFINED) do LED para a controladora %1!d!, slot %2!d!.", // 1190
    L"Uma solicitação do usuário definiu o estado estendido 10 (UNDEFINED) do LED para a controladora %1!d!, slot %2!d!.", // 1191
    L"Uma solicitação do usuário restaurou o estado do LED para a controladora %1!d!, slot %2!d!.", // 1192
};
// clang-format on
