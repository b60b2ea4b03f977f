// Turkish texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesTurkish[SK_MESSAGE_COUNT] = {
    L"İleti alanı başlatıldı, iletilerin günlüğe kaydedilmesi başlıyor.", // 1001
    L"İleti alanı bulundu, iletilerin günlüğe kaydedilmesi son girişten itibaren sürdürülüyor.", // 1002
    L"Sürüm uyuşmazlığı nedeniyle başlatma yapıldı, bazı iletiler kaybolmuş olabilir.", // 1003
    L"İleti belleği boyutu uyuşmazlığı nedeniyle başlatma yapıldı, bazı iletiler kaybolmuş olabilir.", // 1004
    L"İleti azami indeks boyutu uyuşmazlığı nedeniyle başlatma yapıldı, bazı iletiler kaybolmuş olabilir.", // 1005
    L"Bozuk ileti yazma işaretçisi nedeniyle başlatma yapıldı, bazı iletiler kaybolmuş olabilir.", // 1006
    L"Kritik kullanıcı bilgisi girişleri kayboldu.", // 1008
    L"Çeviri için %1!d! (0x%1!x!) kimlikli ileti bulunamadı, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Çekirdek yeniden tarama komutu alındı.", // 1012
    L"Sürücü arızalandı: denetleyici %1!d!, kanal %2!d!.", // 1013
    L"Dizi %1!d! silindi.", // 1014
    L"Dizi %1!d! kritik duruma geçti.", // 1015
    L"Dizi %1!d! çevrimdışı duruma geçti.", // 1016
    L"Dizi %1!d! üzerindeki yeniden oluşturma görevi sürdürüldü.", // 1017
    L"Dizi %1!d! üzerindeki yeniden oluşturma görevi tamamlandı.", // 1018
    L"Dizi %1!d! üzerindeki yeniden oluşturma görevi başarısız oldu.", // 1019
    L"Dizi %1!d! üzerindeki dönüştürme görevi sürdürüldü.", // 1020
    L"Dizi %1!d! üzerindeki dönüştürme görevi tamamlandı.", // 1021
    L"Dizi %1!d! üzerindeki dönüştürme görevi başarısız oldu.", // 1022
    L"Dizi %1!d! üzerindeki tutarlılık denetimi görevi sürdürüldü.", // 1023
    L"Dizi %1!d! üzerindeki tutarlılık denetimi görevi tamamlandı.", // 1024
    L"Dizi %1!d! üzerindeki tutarlılık denetimi görevi başarısız oldu.", // 1025
    L"Dizi %1!d! için oluşturma görevi sürdürüldü.", // 1026
    L"Dizi %1!d! için oluşturma görevi tamamlandı.", // 1027
    L"Dizi %1!d! için oluşturma görevi başarısız oldu.", // 1028
    L"Sürücü başlatıldı: denetleyici %1!d!, kanal %2!d!.", // 1029
    L"Dizi %1!d! görev önceliği değişti.", // 1030
    L"Dizi %1!d! bölündü, yeni dizi %2!d!.", // 1031
    L"Dizi %1!d! önbellek ilkesi şu şekilde değiştirildi: OKUMA.", // 1034
    L"Dizi %1!d! önbellek ilkesi şu şekilde değiştirildi: YAZMA.", // 1035
    L"Dizi %1!d! önbellek ilkesi şu şekilde değiştirildi: ÖNBELLEK YOK.", // 1036
    L"Yapılandırma değişikliği.", // 1037
    L"Yeni sürücü bağlandı.", // 1038
    L"Sürücü bağlantısı kesildi.", // 1039
    L"IO zaman aşımı: denetleyici %1!d!, kanal %2!d!.", // 1040
    L"Aygıt hatası: denetleyici %1!d!, kanal %2!d!.", // 1041
    L"Aygıt bağlandı: denetleyici %1!d!, kanal %2!d!.", // 1042
    L"Aygıt bağlantısı kesildi: denetleyici %1!d!, kanal %2!d!.", // 1043
    L"Ortam hatası: denetleyici %1!d!, kanal %2!d!.", // 1047
    L"Dizi %1!d!: gecikmeli yazma verileri kayboldu.", // 1048
    L"Aygıt arızalandı: denetleyici %1!d!, kanal %2!d!, satır %3!d!.", // 1049
    L"BBR ikinci denemesi başarısız oldu: denetleyici %1!d!, kanal %2!d!.", // 1050
    L"Çok fazla BBR hatası, I/O başarısız: denetleyici %1!d!, kanal %2!d!.", // 1051
    L"Blok numarası düşük=0x%1!x!, yüksek=0x%2!x!.", // 1052
    L"Dizi %1!d! üzerindeki kopyalama görevi sürdürüldü.", // 1053
    L"Dizi %1!d! üzerindeki kopyalama görevi tamamlandı.", // 1054
    L"Dizi %1!d! üzerindeki kopyalama görevi başarısız oldu.", // 1055
    L"Dizi %1!d! üzerinde kurtarılamayan ortam hatası, veriler kaybolmuş olabilir.", // 1056
    L"Aygıt takılması algılandı: denetleyici %1!d!, kanal %2!d!.", // 1057
    L"BELLEK EŞLEME HATASI: denetleyici %1!d!, kanal %2!d!, KANAL DEVRE DIŞI BIRAKILIYOR.", // 1060
    L"SMART aygıtı EŞİK AŞILDI bildiriyor: denetleyici %1!d!, kanal %2!d!.", // 1061
    L"Dizi %1!d! önbellek ilkesi şu şekilde değiştirildi: OKUMA/YAZMA.", // 1067
    L"Sistem %1!d!.%2!d!.%3!d!.%4!d! adresinden uzaktan yönetiliyor.", // 1068
    L"%1!d!.%2!d!.%3!d!.%4!d! adresinden uzaktan yönetim sona erdi.", // 1069
    L"Dizi %1!d! üzerindeki dönüştürme görevi duraklatıldı.", // 1097
    L"Dizi %1!d! üzerindeki tutarlılık denetimi görevi duraklatıldı.", // 1098
    L"Dizi %1!d! üzerindeki yeniden oluşturma görevi duraklatıldı.", // 1099
    L"Dizi %1!d! için oluşturma görevi duraklatıldı.", // 1100
    L"Dizi %1!d! üzerindeki kopyalama görevi duraklatıldı.", // 1101
    L"Dizi %1!d! üzerindeki dönüştürme görevi kaldırıldı.", // 1102
    L"Dizi %1!d! üzerindeki tutarlılık denetimi görevi kaldırıldı.", // 1103
    L"Dizi %1!d! üzerindeki yeniden oluşturma görevi kaldırıldı.", // 1104
    L"Dizi %1!d! için oluşturma görevi kaldırıldı.", // 1105
    L"Dizi %1!d! üzerindeki kopyalama görevi kaldırıldı, bağlantı kaldırma başarılı.", // 1106
    L"Dizi %1!d! üzerindeki dönüştürme görevi durduruldu.", // 1107
    L"Dizi %1!d! üzerindeki tutarlılık denetimi görevi durduruldu.", // 1108
    L"Dizi %1!d! üzerindeki yeniden oluşturma görevi durduruldu.", // 1109
    L"Dizi %1!d! için oluşturma görevi durduruldu.", // 1110
    L"Dizi %1!d! üzerindeki kopyalama görevi durduruldu.", // 1111
    L"Dizi %1!d! bölündü.", // 1112
    L"Dizi %2!d! üzerinde dizi taraması geçişi %1!d! başladı.", // 1114
    L"Dizi %2!d! üzerinde dizi taraması geçişi %1!d! tamamlandı.", // 1115
    L"Dizi %1!d! üzerinde dizi taraması etkinleştirildi.", // 1116
    L"Dizi %1!d! üzerinde dizi taraması devre dışı bırakıldı.", // 1117
    L"Flash görüntüsü denetleyici %1!x! üzerine indiriliyor, yüzde %2!d! tamamlandı.", // 1128
    L"Flash görüntüsünün IOC birimine indirilmesi tamamlandı: denetleyici %1!x!.", // 1129
    L"Dizi %1!x! üzerindeki ortam hatası onarıldı.", // 1130
    L"Sürücü genel yedek olarak atandı: denetleyici %1!d!, kanal %2!d!.", // 1132
    L"Sürücü genel yedek listesinden kaldırıldı: denetleyici %1!d!, kanal %2!d!.", // 1133
    L"Dizi %1!x! üzerindeki tutarsızlık onarıldı.", // 1134
    L"Dizi %1!d! gizlendi.", // 1135
    L"Dizi %1!d! yeniden görünür yapıldı.", // 1136
    L"Kaynak diskteki okuma hatası nedeniyle dizi %1!d! üzerinde yeniden oluşturma başarısız oldu.", // 1137
    L"Dizi %1!d! için oluşturma görevi başlatıldı.", // 1138
    L"Dizi %1!d! üzerindeki yeniden oluşturma görevi başlatıldı.", // 1139
    L"Dizi %1!d! üzerindeki dönüştürme görevi başlatıldı.", // 1140
    L"Dizi %1!d! üzerindeki tutarlılık denetimi görevi başlatıldı.", // 1141
    L"Diskin geri yazma önbelleği (write-back) etkinleştirildi: denetleyici %1!d!, kanal %2!d!.", // 1142
    L"Diskin geri yazma önbelleği (write-back) devre dışı bırakıldı: denetleyici %1!d!, kanal %2!d!.", // 1143
    L"Diskin önden okuma özelliği etkinleştirildi: denetleyici %1!d!, kanal %2!d!.", // 1144
    L"Diskin önden okuma özelliği devre dışı bırakıldı: denetleyici %1!d!, kanal %2!d!.", // 1145
    L"IOC ürün yazılımı görüntüsü indirme hatası algılandı: denetleyici %1!d!, ofset %2!x!.", // 1147
    L"Aygıtın LED durumu değişikliği kaçırıldı: denetleyici %1!d!, kanal %2!d!.", // 1148
    L"Dizi %1!d! için LED durumu değişikliği kaçırıldı.", // 1149
    L"Bir kullanıcı isteği tanımlama durumunu ayarladı: denetleyici %1!d!, yuva %2!d!.", // 1150
    L"Bir kullanıcı isteği bir birim için tanımlamayı ayarladı: denetleyici %1!d!, yuva %2!d!.", // 1151
    L"Bir kullanıcı isteği tanımlama durumunu temizledi: denetleyici %1!d!, yuva %2!d!.", // 1152
    L"Çevrimdışı dizi %1!d! zorla kurtarıldı.", // 1153
    L"Dizi %3!d! için ayrılmış yedek atandı: denetleyici %1!d!, kanal %2!d!.", // 1154
    L"Dizi %3!d! için ayrılmış yedek kaldırıldı: denetleyici %1!d!, kanal %2!d!.", // 1155
    L"Denetleyici %1!d! için kasa yönetimi desteklenmiyor.", // 1156
    L"Sahipsiz tanımlama durumu isteği temizlendi: denetleyici %1!d!, yuva %2!d!.", // 1157
    L"Dizi %1!d! üzerindeki yeniden oluşturma görevi kullanıcı tarafından kaldırıldı.", // 1158
    L"Disk delinmiş (puncture) olarak işaretlendi: denetleyici %1!d!, kanal %2!d!.", // 1159
    L"Disk delinmiş (puncture) olarak işaretlenemedi: denetleyici %1!d!, kanal %2!d!.", // 1160
    L"Dizi %1!d! üzerindeki güvenli silme görevi duraklatıldı.", // 1165
    L"Dizi %1!d! üzerindeki güvenli silme görevi sürdürüldü.", // 1166
    L"Dizi %1!d! üzerindeki güvenli silme görevi başarısız oldu.", // 1167
    L"Dizi %1!d! üzerindeki güvenli silme görevi tamamlandı.", // 1168
    L"Dizi %1!d! üzerindeki güvenli silme görevi durduruldu.", // 1169
    L"Dizi %1!d! üzerindeki güvenli silme görevi kaldırıldı.", // 1170
    L"Yeni ve bilinmeyen bir aygıt takıldı: denetleyici %1!d!, kanal %2!d!.", // 1171
    L"Dizi %1!d! üzerindeki qsync görevi sürdürüldü.", // 1172
    L"Dizi %1!d! üzerindeki qsync görevi tamamlandı.", // 1173
    L"Dizi %1!d! üzerindeki qsync görevi başarısız oldu.", // 1174
    L"Dizi %1!d! üzerindeki qsync görevi durduruldu.", // 1175
    L"Dizi %1!d! üzerindeki qsync görevi kaldırıldı.", // 1176
    L"Dizi %1!d! üzerindeki qsync görevi duraklatıldı.", // 1177
    L"Dizi %1!d! üzerindeki qsync görevi başlatıldı.", // 1178
    L"Dizi %1!d! üzerinde qsync etkinleştirildi.", // 1179
    L"Dizi %1!d! üzerinde qsync devre dışı bırakıldı.", // 1180
    L"Sürücü meta verileri temizlendi: denetleyici %1!d!, kanal %2!d!.", // 1181
    L"Bir kullanıcı isteği LED genişletilmiş durumunu 1 (TAMAM) olarak ayarladı: denetleyici %1!d!, yuva %2!d!.", // 1182
    L"Bir kullanıcı isteği LED genişletilmiş durumunu 2 (YENİDEN OLUŞTURULUYOR) olarak ayarladı: denetleyici %1!d!, yuva %2!d!.", // 1183
    L"Bir kullanıcı isteği LED genişletilmiş durumunu 3 (ARIZALI) olarak ayarladı: denetleyici %1!d!, yuva %2!d!.", // 1184
    L"Bir kullanıcı isteği LED genişletilmiş durumunu 4 (TANIMLA) olarak ayarladı: denetleyici %1!d!, yuva %2!d!.", // 1185
    L"Bir kullanıcı isteği LED genişletilmiş durumunu 5 (TANIMSIZ) olarak ayarladı: denetleyici %1!d!, yuva %2!d!.", // 1186
    L"Bir kullanıcı isteği LED genişletilmiş durumunu 6 (TANIMSIZ) olarak ayarladı: denetleyici %1!d!, yuva %2!d!.", // 1187
    L"Bir kullanıcı isteği LED genişletilmiş durumunu 7 (TANIMSIZ) olarak ayarladı: denetleyici %1!d!, yuva %2!d!.", // 1188
    L"Bir kullanıcı isteği LED genişletilmiş durumunu 8 (TANIMSIZ) olarak ayarladı: denetleyici %1!d!, yuva %2!d!.", // 1189
    L"Bir kullanıcı isteği LED genişletilmiş durumunu 9 (TANIMSIZ) olarak ayarladı: denetleyici %1!d!, yuva %2!d!.", // 1190
    L"Bir kullanıcı isteği LED genişletilmiş durumunu 10 (TANIMSIZ) olarak ayarladı: denetleyici %1!d!, yuva %2!d!.", // 1191
    L"Bir kullanıcı isteği LED durumunu geri yükledi: denetleyici %1!d!, yuva %2!d!.", // 1192
};
// clang-format on
