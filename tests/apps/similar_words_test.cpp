#include "apps/common/similar_words.h"

#include <gtest/gtest.h>

namespace qorvex::apps {

using Words = std::vector<std::string>;

TEST(SimilarWords, AreThoseThatSomeoneMayHaveMeant) {
  const Words words = {"normal", "log-normal", "gaussian", "student-t", "at-most", "gamma", "f"};
  const struct {
    const char* typed;
    Words similar;
  } cases[] = {
      {"gauss", {"gaussian"}},            // its beginning
      {"normally", {"normal"}},           // begins with it
      {"Log_Norm", {"log-normal"}},       // without case and signs
      {"most", {"at-most"}},              // a part of it
      {"gmama", {"gamma"}},               // an exchange
      {"nrmal", {"normal"}},              // a letter less
      {"studentst", {"student-t"}},       // a letter more
      {"ganna", {}},                      // two of five letters
      {"gamna", {"gamma"}},               // one of five
      {"mal", {"normal", "log-normal"}},  // equally near
      {"x", {}},
      {"", {}},
      {"-", {}},
  };
  for (const auto& [typed, similar] : cases)
    EXPECT_EQ(SimilarWords(typed, words), similar) << typed;
  EXPECT_EQ(SimilarWords(std::string(1000, 'f'), words), Words());
}

TEST(SimilarWords, AreListedInASentence) {
  EXPECT_EQ(Alternatives({"a"}), "a");
  EXPECT_EQ(Alternatives({"a", "b", "c"}), "a, b or c");
}

}  // namespace qorvex::apps
