#include "shell/week/week_facts.h"

#include <algorithm>
#include <array>

#include "core/value.h"

namespace lad::shell {

namespace {

// The first week of each picture set; the set is named after it.
constexpr std::array<int, 10> kMovieSets{2, 5, 7, 9, 12, 18, 25, 30, 34, 37};

struct Fruit {
  int week;
  std::string_view cap;
};

constexpr Fruit kFruits[] = {
    {0, "На более позднем сроке здесь появится информация о размере малыша."},
    {4, "Эмбрион размером с маковое зернышко.\nДлина:"},
    {6, "Ваш малыш становится размером с чечевицу.\nДлина:"},
    {8, "Малыш размером с фасоль.\nДлина от макушки до копчика составляет"},
    {10, "Сейчас ваш малыш размером с оливку.\nДлина от макушки до копчика составляет"},
    {12, "Малыш размером с лайм.\nДлина от макушки до копчика составляет"},
    {14, "Малыш размером почти с лимон.\nДлина:"},
    {16, "Малыш достиг размера груши.\nЕго длина от макушки до копчика составляет"},
    {18, "Малыш величиной с болгарский перец.\nЕго длина от макушки до копчика составляет"},
    {20,
     "Малыш размером с небольшой банан.\nНачиная с 20 недели беременности малыш измеряется от "
     "макушки до пяток. Его длина составляет"},
    {22, "Ваш малыш достиг размеров огурца.\nЕго длина от макушки до пяток составляет"},
    {24, "Ваш малыш длиной с кукурузный початок.\nЕго длина от макушки до пяток составляет"},
    {28, "Ваш малыш сейчас размером с баклажан\nЕго длина от макушки до пяток составляет"},
    {30,
     "Малыш достиг размеров большого кочана капусты.\nЕго длина от макушки до пяток составляет"},
    {34, "Малыш достиг размера дыни.\nЕго длина от макушки до пяток составляет"},
    {38, "Малыш достиг размера арбуза.\nЕго длина от макушки до пяток составляет"},
};

constexpr Organ kOrgans[] = {
    {"Достижения", 0, 40, "rich-u"},      {"Мозг", 5, 32, "mozg-u"},
    {"Глаза (зрение)", 6, 32, "glaza-u"}, {"Сердце", 5, 10, "serdce-u"},
    {"Желудок", 7, 21, "zheludok-u"},     {"Гениталии", 10, 35, "geni-u"},
    {"Кишечник", 7, 21, "kishech-u"},     {"Печень", 6, 21, "pechen-u"},
    {"Легкие", 6, 31, "legkie-u"},        {"Уши (слух)", 6, 32, "ushi-u"},
};

}  // namespace

std::vector<std::string> movieFrames(int week) {
  // Weeks before the second set's first show the first set.
  int set = kMovieSets.front();
  for (int first : kMovieSets)
    if (week >= first) set = first;
  std::vector<std::string> frames;
  for (int frame = 1; frame <= 8; ++frame)
    frames.push_back(std::to_string(set) + "w00" + std::to_string(frame) + ".jpg");
  return frames;
}

std::string_view fruitCaption(int week) {
  std::string_view cap = kFruits[0].cap;
  for (const Fruit& f : kFruits)
    if (f.week <= week) cap = f.cap;
  return cap;
}

std::string bodyPageLength(int day, double rost) {
  if (day <= 28) return "-";
  if (day <= 42) return "2 мм.";
  if (day <= 56) return "5 мм.";
  if (day <= 63) return "14 мм.";
  return formatDouble(rost) + " мм.";
}

int bodyMonth(int day) {
  return std::clamp(day / 30 + 1, 1, 9);
}

std::span<const Organ> organs() {
  return kOrgans;
}

int organDegrees(const Organ& organ, int daysSinceStart) {
  const long long span = 7LL * (organ.maxweek - organ.minweek);
  const long long per = (daysSinceStart - 7LL * organ.minweek) * 360 / span;
  return static_cast<int>(std::clamp(per, 0LL, 360LL));
}

}  // namespace lad::shell
