#include "bench/SampleRows.h"

#include <array>
#include <cstdio>
#include <random>

namespace mindloft::bench {
namespace {

struct Names {
  std::array<std::string_view, 12> given, family;
};

constexpr Names kLatin = {{"Sarah", "James", "Maria", "Oliver", "Chloé", "Lukas", "Ingrid", "Pedro", "Amelia",
                           "Jürgen", "Nina", "Li"},
                          {"Johnson", "Miller", "García", "Schröder", "Nowak", "Andersson", "Rossi", "Wei",
                           "Dubois", "Okafor", "Johansen", "Clarke"}};
constexpr Names kCyrillic = {
    {"Ольга", "Иван", "Мария", "Пётр", "Анна", "Сергей", "Елена", "Дмитрий", "Юлия", "Олег", "Вера", "Павел"},
    {"Иванова", "Петров", "Смирнова", "Кузнецов", "Попова", "Соколов", "Лебедева", "Козлов", "Новикова",
     "Морозов", "Волкова", "Зайцев"}};
constexpr Names kChinese = {{"伟", "芳", "娜", "敏", "静", "丽", "强", "磊", "军", "洋", "勇", "艳"},
                            {"王", "李", "张", "刘", "陈", "杨", "赵", "黄", "周", "吴", "徐", "孙"}};
constexpr std::array<std::string_view, 8> kPlaces = {"Paris", "Leeds", "Kraków", "Osaka",
                                                     "Lagos", "Quito", "Malmö",  "Perth"};
constexpr std::array<std::string_view, 8> kWork = {"Sales",   "Legal",    "Research",   "Front office",
                                                   "Support", "Planning", "Accounting", "Archive"};

}  // namespace

UserRecord SampleUser(std::uint32_t number) {
  std::mt19937 random(number * 2654435761U + 1);
  auto pick = [&](const auto& list) { return std::string(list[random() % list.size()]); };
  const auto script = random() % 10;
  const Names& names = script == 0 ? kCyrillic : script == 1 ? kChinese : kLatin;
  UserRecord user;
  char name[16];
  std::snprintf(name, sizeof name, "%c%c%07u", 'a' + static_cast<char>(random() % 26),
                'a' + static_cast<char>(random() % 26), number);
  user.name = std::string(name) + "u" + std::to_string(random() % 100);
  const std::string given = pick(names.given), family = pick(names.family);
  user.fullName =
      script == 1 ? family + given : given + ' ' + static_cast<char>('A' + random() % 26) + ". " + family;
  user.department = pick(kWork);
  user.email = user.name + "@example.com";
  user.telephone = "+44 20 " + std::to_string(1000000 + random() % 9000000);
  user.description = pick(kWork) + ", " + pick(kPlaces) + ", room " + std::to_string(random() % 900);
  user.enabled = random() % 20 != 0;
  return user;
}

}  // namespace mindloft::bench
