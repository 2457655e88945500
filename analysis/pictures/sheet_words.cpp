#include "analysis/pictures/sheet_words.h"

namespace plateconfig {

std::string_view NameOf(Assumption assumption) {
  switch (assumption) {
    case Assumption::kPaper:
      return "paper";
    case Assumption::kFrame:
      return "frame";
    case Assumption::kOrigin:
      return "origin";
    case Assumption::kMargins:
      return "margins";
    case Assumption::kViewGroup:
      return "view-group";
    case Assumption::kHeaderShares:
      return "header-shares";
    case Assumption::kEverySheet:
      return "every-sheet";
    case Assumption::kTextSize:
      break;
  }
  return "text-size";
}

Words WordsOf(Assumption assumption) {
  switch (assumption) {
    case Assumption::kPaper:
      return {"no table has the size of the paper", "各表中没有纸张的大小"};
    case Assumption::kFrame:
      return {"no table says how far the frame lies from the edge of the paper; it is drawn on the edge",
              "表中没有说明图框离纸边多远，这里画在纸边上"};
    case Assumption::kOrigin:
      return {"places that are shares of the sheet count from its lower left corner",
              "按图纸比例给出的位置，从图纸左下角算起"};
    case Assumption::kMargins:
      return {
          "no table says the unit of a margin; a left margin is taken as a share of the length, a top "
          "margin as a share of the height from the top",
          "表中没有说明边距的单位；左边距按图纸长度的比例从左算起，顶边距按图纸高度的比例从上算起"};
    case Assumption::kViewGroup:
      return {"the views may fill their share of the frame in one direction only; the whole room is drawn",
              "全部视图可能只在一个方向上占满规定的比例，这里画出整块区域"};
    case Assumption::kHeaderShares:
      return {
          "no table says of what the places in the header are shares; the sheet is taken, and what lies at "
          "the point, the corner or the middle of the text, is not known",
          "表中没有说明表头的位置是什么的比例，这里按图纸算；也没有说明该点是文字的角还是中间"};
    case Assumption::kEverySheet:
      return {"no table says on which sheets this is drawn; it is shown on both",
              "表中没有说明它画在哪种图上，这里两种图都画"};
    case Assumption::kTextSize:
      break;
  }
  return {"the first number of a text style is taken as the height of the text in mm",
          "文字样式中的第一个数当作以毫米计的字高"};
}

}  // namespace plateconfig
