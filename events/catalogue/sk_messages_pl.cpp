// Polish texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesPolish[SK_MESSAGE_COUNT] = {
    L"Zainicjowano obszar komunikatów, rozpoczęto rejestrowanie komunikatów.", // 1001
    L"Znaleziono obszar komunikatów, wznowiono rejestrowanie komunikatów od ostatniego wpisu.", // 1002
    L"Niezgodność wersji spowodowała inicjowanie, niektóre komunikaty mogły zostać utracone.", // 1003
    L"Niezgodność rozmiaru pamięci komunikatów spowodowała inicjowanie, niektóre komunikaty mogły zostać utracone.", // 1004
    L"Niezgodność maksymalnego rozmiaru indeksu komunikatów spowodowała inicjowanie, niektóre komunikaty mogły zostać utracone.", // 1005
    L"Uszkodzony wskaźnik zapisu komunikatów spowodował inicjowanie, niektóre komunikaty mogły zostać utracone.", // 1006
    L"Utracono krytyczne wpisy informacji dla użytkownika.", // 1008
    L"Nie znaleziono komunikatu o identyfikatorze %1!d! (0x%1!x!) do przetłumaczenia, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Odebrano polecenie ponownego skanowania rdzenia.", // 1012
    L"Awaria dysku na kontrolerze %1!d!, kanał %2!d!.", // 1013
    L"Macierz %1!d! została usunięta.", // 1014
    L"Macierz %1!d! przeszła w stan krytyczny.", // 1015
    L"Macierz %1!d! przeszła w tryb offline.", // 1016
    L"Zadanie odbudowy w macierzy %1!d! zostało wznowione.", // 1017
    L"Zadanie odbudowy w macierzy %1!d! zostało zakończone.", // 1018
    L"Zadanie odbudowy w macierzy %1!d! zakończyło się niepowodzeniem.", // 1019
    L"Zadanie transformacji w macierzy %1!d! zostało wznowione.", // 1020
    L"Zadanie transformacji w macierzy %1!d! zostało zakończone.", // 1021
    L"Zadanie transformacji w macierzy %1!d! zakończyło się niepowodzeniem.", // 1022
    L"Zadanie sprawdzania spójności w macierzy %1!d! zostało wznowione.", // 1023
    L"Zadanie sprawdzania spójności w macierzy %1!d! zostało zakończone.", // 1024
    L"Zadanie sprawdzania spójności w macierzy %1!d! zakończyło się niepowodzeniem.", // 1025
    L"Zadanie tworzenia macierzy %1!d! zostało wznowione.", // 1026
    L"Zadanie tworzenia macierzy %1!d! zostało zakończone.", // 1027
    L"Zadanie tworzenia macierzy %1!d! zakończyło się niepowodzeniem.", // 1028
    L"Zainicjowano dysk na kontrolerze %1!d!, kanał %2!d!.", // 1029
    L"Zmieniono priorytet zadań macierzy %1!d!.", // 1030
    L"Macierz %1!d! została rozdzielona, nowa macierz %2!d!.", // 1031
    L"Zmiana zasad pamięci podręcznej macierzy %1!d! na ODCZYT.", // 1034
    L"Zmiana zasad pamięci podręcznej macierzy %1!d! na ZAPIS.", // 1035
    L"Zmiana zasad pamięci podręcznej macierzy %1!d! na BRAK PAMIĘCI PODRĘCZNEJ.", // 1036
    L"Zmiana konfiguracji.", // 1037
    L"Podłączono nowy dysk.", // 1038
    L"Odłączono dysk.", // 1039
    L"Przekroczono limit czasu IO na kontrolerze %1!d!, kanał %2!d!.", // 1040
    L"Błąd urządzenia na kontrolerze %1!d!, kanał %2!d!.", // 1041
    L"Podłączono urządzenie na kontrolerze %1!d!, kanał %2!d!.", // 1042
    L"Odłączono urządzenie na kontrolerze %1!d!, kanał %2!d!.", // 1043
    L"Błąd nośnika na kontrolerze %1!d!, kanał %2!d!.", // 1047
    L"Macierz %1!d!: utracono dane opóźnionego zapisu.", // 1048
    L"Awaria urządzenia na kontrolerze %1!d!, kanał %2!d!, wiersz %3!d!.", // 1049
    L"Druga próba BBR nie powiodła się, kontroler %1!d!, kanał %2!d!.", // 1050
    L"Zbyt wiele błędów BBR, operacja I/O zakończona niepowodzeniem, kontroler %1!d!, kanał %2!d!.", // 1051
    L"Numer bloku: część niższa=0x%1!x!, część wyższa=0x%2!x!.", // 1052
    L"Zadanie kopiowania w macierzy %1!d! zostało wznowione.", // 1053
    L"Zadanie kopiowania w macierzy %1!d! zostało zakończone.", // 1054
    L"Zadanie kopiowania w macierzy %1!d! zakończyło się niepowodzeniem.", // 1055
    L"Nieodwracalny błąd nośnika w macierzy %1!d!, dane mogły zostać utracone.", // 1056
    L"Wykryto włożenie urządzenia na kontrolerze %1!d!, kanał %2!d!.", // 1057
    L"BŁĄD MAPOWANIA PAMIĘCI na kontrolerze %1!d!, kanał %2!d!, WYŁĄCZENIE KANAŁU.", // 1060
    L"Urządzenie SMART zgłasza PRZEKROCZENIE PROGU na kontrolerze %1!d!, kanał %2!d!.", // 1061
    L"Zmiana zasad pamięci podręcznej macierzy %1!d! na ODCZYT/ZAPIS.", // 1067
    L"System jest zdalnie zarządzany z adresu %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Zakończono zdalne zarządzanie z adresu %1!d!.%2!d!.%3!d!.%4!d!.", // 1069
    L"Zadanie transformacji w macierzy %1!d! zostało wstrzymane.", // 1097
    L"Zadanie sprawdzania spójności w macierzy %1!d! zostało wstrzymane.", // 1098
    L"Zadanie odbudowy w macierzy %1!d! zostało wstrzymane.", // 1099
    L"Zadanie tworzenia macierzy %1!d! zostało wstrzymane.", // 1100
    L"Zadanie kopiowania w macierzy %1!d! zostało wstrzymane.", // 1101
    L"Zadanie transformacji w macierzy %1!d! zostało usunięte.", // 1102
    L"Zadanie sprawdzania spójności w macierzy %1!d! zostało usunięte.", // 1103
    L"Zadanie odbudowy w macierzy %1!d! zostało usunięte.", // 1104
    L"Zadanie tworzenia macierzy %1!d! zostało usunięte.", // 1105
    L"Zadanie kopiowania w macierzy %1!d! zostało usunięte, rozłączenie zakończone powodzeniem.", // 1106
    L"Zadanie transformacji w macierzy %1!d! zostało zatrzymane.", // 1107
    L"Zadanie sprawdzania spójności w macierzy %1!d! zostało zatrzymane.", // 1108
    L"Zadanie odbudowy w macierzy %1!d! zostało zatrzymane.", // 1109
    L"Zadanie tworzenia macierzy %1!d! zostało zatrzymane.", // 1110
    L"Zadanie kopiowania w macierzy %1!d! zostało zatrzymane.", // 1111
    L"Macierz %1!d! została rozdzielona.", // 1112
    L"Rozpoczęto przebieg %1!d! skanowania macierzy %2!d!.", // 1114
    L"Zakończono przebieg %1!d! skanowania macierzy %2!d!.", // 1115
    L"Włączono skanowanie macierzy %1!d!.", // 1116
    L"Wyłączono skanowanie macierzy %1!d!.", // 1117
    L"Ładowanie obrazu flash do kontrolera %1!x!, ukończono %2!d! procent.", // 1128
    L"Zakończono ładowanie obrazu flash do IOC kontrolera %1!x!.", // 1129
    L"Naprawiono błąd nośnika w macierzy %1!x!.", // 1130
    L"Dysk przypisany jako globalny dysk zapasowy na kontrolerze %1!d!, kanał %2!d!.", // 1132
    L"Dysk usunięty z listy globalnych dysków zapasowych na kontrolerze %1!d!, kanał %2!d!.", // 1133
    L"Naprawiono niespójność w macierzy %1!x!.", // 1134
    L"Ukryto macierz %1!d!.", // 1135
    L"Przywrócono widoczność macierzy %1!d!.", // 1136
    L"Odbudowa macierzy %1!d! nie powiodła się z powodu błędu odczytu na dysku źródłowym.", // 1137
    L"Zadanie tworzenia macierzy %1!d! zostało uruchomione.", // 1138
    L"Zadanie odbudowy w macierzy %1!d! zostało uruchomione.", // 1139
    L"Zadanie transformacji w macierzy %1!d! zostało uruchomione.", // 1140
    L"Zadanie sprawdzania spójności w macierzy %1!d! zostało uruchomione.", // 1141
    L"Włączono pamięć podręczną zapisu zwrotnego (write-back) dysku na kontrolerze %1!d!, kanał %2!d!.", // 1142
    L"Wyłączono pamięć podręczną zapisu zwrotnego (write-back) dysku na kontrolerze %1!d!, kanał %2!d!.", // 1143
    L"Włączono odczyt z wyprzedzeniem dysku na kontrolerze %1!d!, kanał %2!d!.", // 1144
    L"Wyłączono odczyt z wyprzedzeniem dysku na kontrolerze %1!d!, kanał %2!d!.", // 1145
    L"Wykryto błąd ładowania obrazu oprogramowania układowego IOC na kontrolerze %1!d! przy przesunięciu %2!x!.", // 1147
    L"Pominięto zmianę stanu diody LED urządzenia na kontrolerze %1!d!, kanał %2!d!.", // 1148
    L"Pominięto zmianę stanu diody LED macierzy %1!d!.", // 1149
    L"Na żądanie użytkownika ustawiono stan identyfikacji dla kontrolera %1!d!, gniazdo %2!d!.", // 1150
    L"Na żądanie użytkownika włączono identyfikację woluminu na kontrolerze %1!d!, gniazdo %2!d!.", // 1151
    L"Na żądanie użytkownika wyczyszczono stan identyfikacji dla kontrolera %1!d!, gniazdo %2!d!.", // 1152
    L"Wymuszono odzyskanie macierzy %1!d! będącej w trybie offline.", // 1153
    L"Macierzy %3!d! przypisano dedykowany dysk zapasowy na kontrolerze %1!d!, kanał %2!d!.", // 1154
    L"Z macierzy %3!d! usunięto dedykowany dysk zapasowy na kontrolerze %1!d!, kanał %2!d!.", // 1155
    L"Zarządzanie obudową nie jest obsługiwane dla kontrolera %1!d!.", // 1156
    L"Wyczyszczono osierocone żądanie stanu identyfikacji dla kontrolera %1!d!, gniazdo %2!d!.", // 1157
    L"Zadanie odbudowy w macierzy %1!d! zostało usunięte przez użytkownika.", // 1158
    L"Oznaczono dysk jako przebity (puncture) na kontrolerze %1!d!, kanał %2!d!.", // 1159
    L"Nie udało się oznaczyć dysku jako przebitego (puncture) na kontrolerze %1!d!, kanał %2!d!.", // 1160
    L"Zadanie bezpiecznego wymazywania w macierzy %1!d! zostało wstrzymane.", // 1165
    L"Zadanie bezpiecznego wymazywania w macierzy %1!d! zostało wznowione.", // 1166
    L"Zadanie bezpiecznego wymazywania w macierzy %1!d! zakończyło się niepowodzeniem.", // 1167
    L"Zadanie bezpiecznego wymazywania w macierzy %1!d! zostało zakończone.", // 1168
    L"Zadanie bezpiecznego wymazywania w macierzy %1!d! zostało zatrzymane.", // 1169
    L"Zadanie bezpiecznego wymazywania w macierzy %1!d! zostało usunięte.", // 1170
    L"Włożono nowe nieznane urządzenie na kontrolerze %1!d!, kanał %2!d!.", // 1171
    L"Zadanie qsync w macierzy %1!d! zostało wznowione.", // 1172
    L"Zadanie qsync w macierzy %1!d! zostało zakończone.", // 1173
    L"Zadanie qsync w macierzy %1!d! zakończyło się niepowodzeniem.", // 1174
    L"Zadanie qsync w macierzy %1!d! zostało zatrzymane.", // 1175
    L"Zadanie qsync w macierzy %1!d! zostało usunięte.", // 1176
    L"Zadanie qsync w macierzy %1!d! zostało wstrzymane.", // 1177
    L"Zadanie qsync w macierzy %1!d! zostało uruchomione.", // 1178
    L"Włączono qsync w macierzy %1!d!.", // 1179
    L"Wyłączono qsync w macierzy %1!d!.", // 1180
    L"Wyczyszczono metadane dysku na kontrolerze %1!d!, kanał %2!d!.", // 1181
    L"Na żądanie użytkownika ustawiono rozszerzony stan diody LED 1 (OK) dla kontrolera %1!d!, gniazdo %2!d!.", // 1182
    L"Na żądanie użytkownika ustawiono rozszerzony stan diody LED 2 (ODBUDOWA) dla kontrolera %1!d!, gniazdo %2!d!.", // 1183
    L"Na żądanie użytkownika ustawiono rozszerzony stan diody LED 3 (AWARIA) dla kontrolera %1!d!, gniazdo %2!d!.", // 1184
    L"Na żądanie użytkownika ustawiono rozszerzony stan diody LED 4 (IDENTYFIKACJA) dla kontrolera %1!d!, gniazdo %2!d!.", // 1185
    L"Na żądanie użytkownika ustawiono rozszerzony stan diody LED 5 (NIEZDEFINIOWANY) dla kontrolera %1!d!, gniazdo %2!d!.", // 1186
    L"Na żądanie użytkownika ustawiono rozszerzony stan diody LED 6 (NIEZDEFINIOWANY) dla kontrolera %1!d!, gniazdo %2!d!.", // 1187
    L"Na żądanie użytkownika ustawiono rozszerzony stan diody LED 7 (NIEZDEFINIOWANY) dla kontrolera %1!d!, gniazdo %2!d!.", // 1188
    L"Na żądanie użytkownika ustawiono rozszerzony stan diody LED 8 (NIEZDEFINIOWANY) dla kontrolera %1!d!, gniazdo %2!d!.", // 1189
    L"Na żądanie użytkownika ustawiono rozszerzony stan diody LED 9 (NIEZDEFINIOWANY) dla kontrolera %1!d!, gniazdo %2!d!.", // 1190
    L"Na żądanie użytkownika ustawiono rozszerzony stan diody LED 10 (NIEZDEFINIOWANY) dla kontrolera %1!d!, gniazdo %2!d!.", // 1191
    L"Na żądanie użytkownika przywrócono stan diody LED dla kontrolera %1!d!, gniazdo %2!d!.", // 1192
};
// clang-format on
