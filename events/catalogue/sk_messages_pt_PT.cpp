// European Portuguese texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesPortuguesePortugal[SK_MESSAGE_COUNT] = {
    L"Espaço de mensagens inicializado, a iniciar o registo de mensagens.", // 1001
    L"Espaço de mensagens encontrado, a retomar o registo de mensagens a partir da última entrada.", // 1002
    L"Uma incompatibilidade de versão provocou a inicialização, algumas mensagens podem ter sido perdidas.", // 1003
    L"Uma incompatibilidade no tamanho da memória de mensagens provocou a inicialização, algumas mensagens podem ter sido perdidas.", // 1004
    L"Uma incompatibilidade no tamanho máximo do índice de mensagens provocou a inicialização, algumas mensagens podem ter sido perdidas.", // 1005
    L"Um ponteiro de escrita de mensagens danificado provocou a inicialização, algumas mensagens podem ter sido perdidas.", // 1006
    L"Perderam-se entradas críticas de informação do utilizador.", // 1008
    L"Não foi possível encontrar a mensagem com o ID %1!d! (0x%1!x!) para tradução, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Recebido o comando de reanálise do núcleo.", // 1012
    L"Falha de unidade no controlador %1!d!, canal %2!d!.", // 1013
    L"A matriz %1!d! foi eliminada.", // 1014
    L"A matriz %1!d! entrou em estado crítico.", // 1015
    L"A matriz %1!d! ficou offline.", // 1016
    L"A tarefa de reconstrução na matriz %1!d! foi retomada.", // 1017
    L"A tarefa de reconstrução na matriz %1!d! foi concluída.", // 1018
    L"A tarefa de reconstrução na matriz %1!d! falhou.", // 1019
    L"A tarefa de transformação na matriz %1!d! foi retomada.", // 1020
    L"A tarefa de transformação na matriz %1!d! foi concluída.", // 1021
    L"A tarefa de transformação na matriz %1!d! falhou.", // 1022
    L"A tarefa de verificação de consistência na matriz %1!d! foi retomada.", // 1023
    L"A tarefa de verificação de consistência na matriz %1!d! foi concluída.", // 1024
    L"A tarefa de verificação de consistência na matriz %1!d! falhou.", // 1025
    L"A tarefa de criação da matriz %1!d! foi retomada.", // 1026
    L"A tarefa de criação da matriz %1!d! foi concluída.", // 1027
    L"A tarefa de criação da matriz %1!d! falhou.", // 1028
    L"Unidade inicializada no controlador %1!d!, canal %2!d!.", // 1029
    L"A prioridade das tarefas da matriz %1!d! foi alterada.", // 1030
    L"A matriz %1!d! foi dividida, nova matriz %2!d!.", // 1031
    L"A política de cache da matriz %1!d! foi alterada para LEITURA.", // 1034
    L"A política de cache da matriz %1!d! foi alterada para ESCRITA.", // 1035
    L"A política de cache da matriz %1!d! foi alterada para SEM CACHE.", // 1036
    L"Alteração da configuração.", // 1037
    L"Nova unidade ligada.", // 1038
    L"Unidade desligada.", // 1039
    L"Tempo limite de IO excedido no controlador %1!d!, canal %2!d!.", // 1040
    L"Erro de dispositivo no controlador %1!d!, canal %2!d!.", // 1041
    L"Dispositivo ligado no controlador %1!d!, canal %2!d!.", // 1042
    L"Dispositivo desligado no controlador %1!d!, canal %2!d!.", // 1043
    L"Erro de suporte de dados no controlador %1!d!, canal %2!d!.", // 1047
    L"Matriz %1!d!: perderam-se dados de escrita diferida.", // 1048
    L"Falha de dispositivo no controlador %1!d!, canal %2!d!, linha %3!d!.", // 1049
    L"A segunda tentativa de BBR falhou, controlador %1!d!, canal %2!d!.", // 1050
    L"Demasiadas falhas de BBR, I/O a falhar, controlador %1!d!, canal %2!d!.", // 1051
    L"Número de bloco: parte baixa=0x%1!x!, parte alta=0x%2!x!.", // 1052
    L"A tarefa de cópia na matriz %1!d! foi retomada.", // 1053
    L"A tarefa de cópia na matriz %1!d! foi concluída.", // 1054
    L"A tarefa de cópia na matriz %1!d! falhou.", // 1055
    L"Erro de suporte de dados irrecuperável na matriz %1!d!, podem ter sido perdidos dados.", // 1056
    L"Detetada a inserção de um dispositivo no controlador %1!d!, canal %2!d!.", // 1057
    L"FALHA DE MAPEAMENTO DE MEMÓRIA no controlador %1!d!, canal %2!d!, A DESATIVAR O CANAL.", // 1060
    L"Dispositivo SMART comunica LIMIAR EXCEDIDO no controlador %1!d!, canal %2!d!.", // 1061
    L"A política de cache da matriz %1!d! foi alterada para LEITURA/ESCRITA.", // 1067
    L"O sistema está a ser gerido remotamente a partir de %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"A gestão remota a partir de %1!d!.%2!d!.%3!d!.%4!d! terminou.", // 1069
    L"A tarefa de transformação na matriz %1!d! foi colocada em pausa.", // 1097
    L"A tarefa de verificação de consistência na matriz %1!d! foi colocada em pausa.", // 1098
    L"A tarefa de reconstrução na matriz %1!d! foi colocada em pausa.", // 1099
    L"A tarefa de criação da matriz %1!d! foi colocada em pausa.", // 1100
    L"A tarefa de cópia na matriz %1!d! foi colocada em pausa.", // 1101
    L"A tarefa de transformação na matriz %1!d! foi removida.", // 1102
    L"A tarefa de verificação de consistência na matriz %1!d! foi removida.", // 1103
    L"A tarefa de reconstrução na matriz %1!d! foi removida.", // 1104
    L"A tarefa de criação da matriz %1!d! foi removida.", // 1105
    L"A tarefa de cópia na matriz %1!d! foi removida, desvinculação concluída com êxito.", // 1106
    L"A tarefa de transformação na matriz %1!d! foi encerrada.", // 1107
    L"A tarefa de verificação de consistência na matriz %1!d! foi encerrada.", // 1108
    L"A tarefa de reconstrução na matriz %1!d! foi encerrada.", // 1109
    L"A tarefa de criação da matriz %1!d! foi encerrada.", // 1110
    L"A tarefa de cópia na matriz %1!d! foi encerrada.", // 1111
    L"A matriz %1!d! foi dividida.", // 1112
    L"Iniciada a passagem %1!d! da análise da matriz %2!d!.", // 1114
    L"Concluída a passagem %1!d! da análise da matriz %2!d!.", // 1115
    L"Análise de matriz ativada na matriz %1!d!.", // 1116
    L"Análise de matriz desativada na matriz %1!d!.", // 1117
    L"A transferir a imagem flash para o controlador %1!x!, %2!d! por cento concluído.", // 1128
    L"Transferência da imagem flash para o IOC do controlador %1!x! concluída.", // 1129
    L"Erro de suporte de dados reparado na matriz %1!x!.", // 1130
    L"Unidade atribuída como disco de reserva global no controlador %1!d!, canal %2!d!.", // 1132
    L"Unidade removida da lista de discos de reserva globais no controlador %1!d!, canal %2!d!.", // 1133
    L"Inconsistência reparada na matriz %1!x!.", // 1134
    L"Matriz %1!d! ocultada.", // 1135
    L"Matriz %1!d! novamente visível.", // 1136
    L"A reconstrução da matriz %1!d! falhou devido a um erro de leitura no disco de origem.", // 1137
    L"A tarefa de criação da matriz %1!d! foi iniciada.", // 1138
    L"A tarefa de reconstrução na matriz %1!d! foi iniciada.", // 1139
    L"A tarefa de transformação na matriz %1!d! foi iniciada.", // 1140
    L"A tarefa de verificação de consistência na matriz %1!d! foi iniciada.", // 1141
    L"Cache de escrita diferida (write-back) do disco ativada no controlador %1!d!, canal %2!d!.", // 1142
    L"Cache de escrita diferida (write-back) do disco desativada no controlador %1!d!, canal %2!d!.", // 1143
    L"Leitura antecipada do disco ativada no controlador %1!d!, canal %2!d!.", // 1144
    L"Leitura antecipada do disco desativada no controlador %1!d!, canal %2!d!.", // 1145
    L"Detetada falha na transferência da imagem de firmware do IOC no controlador %1!d!, no deslocamento %2!x!.", // 1147
    L"Alteração de estado do LED não efetuada para o dispositivo no controlador %1!d!, canal %2!d!.", // 1148
    L"Alteração de estado do LED não efetuada para a matriz %1!d!.", // 1149
    L"Um pedido do utilizador definiu o estado de identificação: controlador %1!d!, ranhura %2!d!.", // 1150
    L"Um pedido do utilizador ativou a identificação de um volume: controlador %1!d!, ranhura %2!d!.", // 1151
    L"Um pedido do utilizador limpou o estado de identificação: controlador %1!d!, ranhura %2!d!.", // 1152
    L"Recuperação forçada da matriz offline %1!d!.", // 1153
    L"Disco de reserva dedicado atribuído à matriz %3!d! no controlador %1!d!, canal %2!d!.", // 1154
    L"Disco de reserva dedicado removido da matriz %3!d! no controlador %1!d!, canal %2!d!.", // 1155
    L"A gestão do compartimento não é suportada no controlador %1!d!.", // 1156
    L"Removido um pedido órfão de estado de identificação: controlador %1!d!, ranhura %2!d!.", // 1157
    L"A tarefa de reconstrução na matriz %1!d! foi removida pelo utilizador.", // 1158
    L"Disco marcado como perfurado (puncture) no controlador %1!d!, canal %2!d!.", // 1159
    L"Não foi possível marcar o disco como perfurado (puncture) no controlador %1!d!, canal %2!d!.", // 1160
    L"A tarefa de eliminação segura na matriz %1!d! foi colocada em pausa.", // 1165
    L"A tarefa de eliminação segura na matriz %1!d! foi retomada.", // 1166
    L"A tarefa de eliminação segura na matriz %1!d! falhou.", // 1167
    L"A tarefa de eliminação segura na matriz %1!d! foi concluída.", // 1168
    L"A tarefa de eliminação segura na matriz %1!d! foi encerrada.", // 1169
    L"A tarefa de eliminação segura na matriz %1!d! foi removida.", // 1170
    L"Foi inserido um novo dispositivo desconhecido no controlador %1!d!, canal %2!d!.", // 1171
    L"A tarefa de qsync na matriz %1!d! foi retomada.", // 1172
    L"A tarefa de qsync na matriz %1!d! foi concluída.", // 1173
    L"A tarefa de qsync na matriz %1!d! falhou.", // 1174
    L"A tarefa de qsync na matriz %1!d! foi encerrada.", // 1175
    L"A tarefa de qsync na matriz %1!d! foi removida.", // 1176
    L"A tarefa de qsync na matriz %1!d! foi colocada em pausa.", // 1177
    L"A tarefa de qsync na matriz %1!d! foi iniciada.", // 1178
    L"qsync ativado na matriz %1!d!.", // 1179
    L"qsync desativado na matriz %1!d!.", // 1180
    L"Metadados da unidade limpos no controlador %1!d!, canal %2!d!.", // 1181
    L"Um pedido do utilizador definiu o estado alargado do LED 1 (OK): controlador %1!d!, ranhura %2!d!.", // 1182
    L"Um pedido do utilizador definiu o estado alargado do LED 2 (EM RECONSTRUÇÃO): controlador %1!d!, ranhura %2!d!.", // 1183
    L"Um pedido do utilizador definiu o estado alargado do LED 3 (FALHADO): controlador %1!d!, ranhura %2!d!.", // 1184
    L"Um pedido do utilizador definiu o estado alargado do LED 4 (IDENTIFICAR): controlador %1!d!, ranhura %2!d!.", // 1185
    L"Um pedido do utilizador definiu o estado alargado do LED 5 (INDEFINIDO): controlador %1!d!, ranhura %2!d!.", // 1186
    L"Um pedido do utilizador definiu o estado alargado do LED 6 (INDEFINIDO): controlador %1!d!, ranhura %2!d!.", // 1187
    L"Um pedido do utilizador definiu o estado alargado do LED 7 (INDEFINIDO): controlador %1!d!, ranhura %2!d!.", // 1188
    L"Um pedido do utilizador definiu o estado alargado do LED 8 (INDEFINIDO): controlador %1!d!, ranhura %2!d!.", // 1189
    L"Um pedido do utilizador definiu o estado alargado do LED 9 (INDEFINIDO): controlador %1!d!, ranhura %2!d!.", // 1190
    L"Um pedido do utilizador definiu o estado alargado do LED 10 (INDEFINIDO): controlador %1!d!, ranhura %2!d!.", // 1191
    L"Um pedido do utilizador restaurou o estado do LED: controlador %1!d!, ranhura %2!d!.", // 1192
};
// clang-format on
