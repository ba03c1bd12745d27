#pragma once

#include <functional>
#include <string>

#include "sizewright/host/objects.h"

namespace sizewright {

/// A stream of an item's list that could be opened.
struct NamedStream {
  std::string name;
  CvdStream stream;
};

/// The best of the values above a bound; 0 until there is one.
template <class Better>
class Extreme {
 public:
  explicit Extreme(double above) : above_(above) {}
  void take(double value) {
    if (value > above_ && (!found_ || Better{}(value, value_))) value_ = value;
    found_ = found_ || value > above_;
  }
  [[nodiscard]] double value() const { return value_; }
  [[nodiscard]] bool found() const { return found_; }

 private:
  double above_;
  double value_ = 0.0;
  bool found_ = false;
};
using Least = Extreme<std::less<>>;
using Greatest = Extreme<std::greater<>>;

/// Mean of the positive values; 0 until there is one.
class MeanOfPositive {
 public:
  void take(double value) {
    if (!(value > 0.0)) return;
    ++count_;
    mean_ += (value - mean_) / count_;
  }
  [[nodiscard]] double value() const { return mean_; }

 private:
  double count_ = 0.0;
  double mean_ = 0.0;
};

/// Gives a field a value while it is not positive.
inline void setIfNotPositive(double& field, double value) {
  if (!(field > 0.0)) field = value;
}

/// Gives a temperature a value while it is unset.
inline void setIfZero(double& field, double value) {
  if (field == 0.0) field = value;
}

}  // namespace sizewright
