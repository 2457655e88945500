#include "analysis/text/folded_name.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <utility>

#include "text/utf8_decode.h"

namespace plateconfig {
namespace {

// Traditional characters, each followed by its simplified form: those of the words that mould shops use. A
// keyboard that is set to traditional characters is the usual slip, so a character that is missing here costs
// a suggestion only.
// clang-format off
constexpr std::u32string_view kTraditional =
    U"並并佈布佔占併并來来係系個个們们備备傢家傳传僅仅價价儀仪億亿償偿優优儲储內内兩两冊册凈净凍冻則则"
    U"剎刹剛刚剝剥創创劃划劇剧劑剂動动務务勝胜匯汇區区協协卻却厭厌參参員员問问啓启啟启喚唤單单嘗尝噴喷"
    U"嚴严圍围圓圆圖图團团執执報报場场塊块塗涂墊垫墮堕壓压壞坏壯壮夾夹媽妈孫孙學学實实審审寫写寬宽寶宝"
    U"將将專专尋寻對对導导層层屬属嶺岭帶带幣币幫帮幹干幾几庫库廠厂廣广張张強强彈弹彎弯後后徑径從从復复"
    U"徵征徹彻恆恒態态慣惯憑凭應应懸悬戰战戲戏戶户拋抛掃扫掛挂採采換换揮挥損损搖摇撥拨擇择擋挡據据擬拟"
    U"擴扩擾扰攝摄敗败敘叙數数斷断時时暢畅暫暂曆历曉晓會会東东柵栅條条棄弃業业極极構构槍枪樓楼標标樞枢"
    U"樣样橋桥機机檔档檢检檯台櫃柜欄栏權权歐欧歸归殘残殺杀殼壳毀毁氣气氫氢沒没淨净減减測测準准溝沟溫温"
    U"滿满漲涨漸渐潔洁潤润濃浓濕湿濾滤灣湾災灾為为無无煙烟熱热燈灯燒烧營营爐炉爾尔牆墙狀状狹狭獎奖獨独"
    U"獲获現现瑣琐環环產产畢毕畫画異异當当療疗發发盡尽監监盤盘眾众確确碼码礎础禦御禮礼種种稱称穀谷積积"
    U"穩稳窩窝競竞筆笔節节範范簡简簽签籌筹粵粤糾纠紀纪約约紅红紋纹納纳紐纽純纯紙纸級级紛纷紮扎細细終终"
    U"組组結结絕绝絞绞給给統统絲丝經经綜综綠绿綫线維维綱纲網网緊紧緒绪線线締缔緣缘編编練练縫缝縮缩縱纵"
    U"總总織织繞绕繩绳繪绘繫系續续纖纤罰罚羅罗義义聯联聲声職职聽听脈脉腦脑膠胶臨临臺台與与舉举舊旧艙舱"
    U"莊庄萬万葉叶蓋盖藍蓝藝艺處处虛虚號号蝕蚀術术衛卫衝冲裏里補补裝装裡里製制複复襯衬規规視视覺觉觀观"
    U"觸触訂订計计訊讯訓训記记設设許许註注評评詞词試试話话該该詳详誌志認认語语誤误說说課课調调談谈請请"
    U"論论證证識识護护讀读變变讓让讚赞豎竖財财貨货貫贯費费貼贴資资質质賬账賴赖購购趨趋跡迹躍跃車车軌轨"
    U"軟软軸轴較较載载輔辅輕轻輛辆輪轮輯辑輸输輻辐轉转辦办農农這这連连進进遊游運运過过達达遞递遠远適适"
    U"遷迁選选還还邊边邏逻郵邮鄉乡鄰邻醫医釋释釘钉針针鈍钝鈑钣鈕钮鉗钳鉛铅鉤钩鉸铰鉻铬銀银銅铜銑铣銘铭"
    U"銜衔銳锐銷销鋁铝鋒锋鋪铺鋸锯鋼钢錄录錐锥錘锤錫锡錯错鍋锅鍍镀鍛锻鍵键鎖锁鎢钨鎳镍鏈链鏜镗鏟铲鏡镜"
    U"鐘钟鐳镭鐵铁鑄铸鑲镶鑽钻長长門门閃闪閉闭開开間间閥阀關关陣阵陳陈陸陆陽阳階阶際际隨随險险隱隐隻只"
    U"雖虽雙双雜杂離离難难雲云電电霧雾靜静響响頁页頂顶項项順顺預预頓顿領领頭头題题額额顏颜願愿類类顯显"
    U"風风颱台飛飞飽饱馬马驅驱驗验驟骤體体鬆松魚鱼鮮鲜鹼碱麗丽麵面黃黄點点齊齐齒齿齡龄齣出龍龙";
// clang-format on

using Pair = std::pair<char32_t, char32_t>;

static_assert(kTraditional.size() % 2 == 0, "each traditional character has its simplified form behind it");

/// The pairs in ascending order.
consteval std::array<Pair, kTraditional.size() / 2> SimplifiedForms() {
  std::array<Pair, kTraditional.size() / 2> pairs;
  for (std::size_t i = 0; i < pairs.size(); ++i) pairs[i] = {kTraditional[2 * i], kTraditional[2 * i + 1]};
  std::sort(pairs.begin(), pairs.end());
  return pairs;
}

constexpr auto kSimplifiedForms = SimplifiedForms();

char32_t Simplified(char32_t c) {
  const auto found = std::lower_bound(kSimplifiedForms.begin(), kSimplifiedForms.end(), Pair{c, 0});
  return found != kSimplifiedForms.end() && found->first == c ? found->second : c;
}

/// The half-width form of a full-width letter, digit or sign.
char32_t HalfWidth(char32_t c) {
  constexpr char32_t kFirst = 0xFF01;
  constexpr char32_t kLast = 0xFF5E;
  return c >= kFirst && c <= kLast ? c - kFirst + U'!' : c;
}

/// The byte order mark is one inside a text: its old meaning is a blank of no width.
bool IsBlank(char32_t c) {
  constexpr std::u32string_view kBlanks = U" \t\r\n\u00A0\u3000\uFEFF";
  return kBlanks.find(c) != std::u32string_view::npos;
}

bool IsDash(char32_t c) {
  constexpr std::u32string_view kDashes = U"-_~\u2010\u2013\u2014\u2212\u223C\u301C\uFF5E";
  return kDashes.find(c) != std::u32string_view::npos;
}

static_assert(std::all_of(kTraditional.begin(), kTraditional.end(), IsChinese));

char32_t Folded(char32_t c) {
  if (IsChinese(c)) return Simplified(c);
  const char32_t half = HalfWidth(c);
  if (IsDash(half)) return U'_';
  if (half >= U'A' && half <= U'Z') return half - U'A' + U'a';
  return half;
}

/// Of a character below U+10000; every other one stays out of a folded name as what it is not known to be.
void AppendUtf8(std::string& text, char32_t c) {
  if (c < 0x80) {
    text += static_cast<char>(c);
  } else if (c < 0x800) {
    text += static_cast<char>(0xC0 | c >> 6);
    text += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    text += static_cast<char>(0xE0 | c >> 12);
    text += static_cast<char>(0x80 | (c >> 6 & 0x3F));
    text += static_cast<char>(0x80 | (c & 0x3F));
  }
}

}  // namespace

std::string FoldedName(std::string_view utf8) {
  std::string folded;
  folded.reserve(utf8.size());  // No character becomes longer.
  for (std::size_t at = 0; at < utf8.size();) {
    const Utf8Character character = DecodeUtf8At(utf8, at);
    if (!IsBlank(character.value)) AppendUtf8(folded, Folded(character.value));
    at += std::max<std::size_t>(character.length, 1);
  }
  return folded;
}

std::u32string Characters(std::string_view utf8) {
  std::u32string characters;
  for (std::size_t at = 0; at < utf8.size();) {
    const Utf8Character character = DecodeUtf8At(utf8, at);
    characters += character.value;
    at += std::max<std::size_t>(character.length, 1);
  }
  return characters;
}

std::size_t OddCharacters(std::string_view utf8) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < utf8.size();) {
    const Utf8Character character = DecodeUtf8At(utf8, at);
    const char32_t c = character.value;
    const bool isWideDigit = c >= U'０' && c <= U'９';
    const bool isWideLetter = (c >= U'Ａ' && c <= U'Ｚ') || (c >= U'ａ' && c <= U'ｚ');
    if (IsBlank(c) || isWideDigit || isWideLetter) ++count;
    at += std::max<std::size_t>(character.length, 1);
  }
  return count;
}

std::string FoldedNameWithoutUnit(std::string_view utf8) {
  std::string folded = FoldedName(utf8);
  const std::size_t open = folded.ends_with(')') ? folded.rfind('(') : std::string::npos;
  if (open != std::string::npos && open > 0) folded.erase(open);
  return folded;
}

std::optional<bool> MeantYes(std::string_view utf8) {
  const std::string folded = FoldedName(utf8);
  if (folded == "y" || folded == "是" || folded == "yes") return true;
  if (folded == "n" || folded == "否" || folded == "no") return false;
  return std::nullopt;
}

std::size_t BlankLength(std::string_view utf8, std::size_t at) {
  const Utf8Character character = DecodeUtf8At(utf8, at);
  return IsBlank(character.value) ? character.length : 0;
}

std::string_view WithoutOuterBlanks(std::string_view utf8) {
  std::size_t begin = utf8.size();
  std::size_t end = begin;
  for (std::size_t at = 0; at < utf8.size();) {
    const Utf8Character character = DecodeUtf8At(utf8, at);
    const std::size_t next = at + std::max<std::size_t>(character.length, 1);
    if (!IsBlank(character.value)) {
      begin = std::min(begin, at);
      end = next;
    }
    at = next;
  }
  return utf8.substr(begin, end - begin);
}

}  // namespace plateconfig
