// SPDX-License-Identifier: MIT
#include "bank/draw/DrawQuestions.h"

#include "bank/draw/DrawnUnits.h"
#include "text/SeededRandom.h"

#include <algorithm>
#include <deque>
#include <numeric>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::size_t kUnitsBetweenPolls = 256;

class Draw {
 public:
  Draw(std::span<const DrawCandidate> candidates, const DrawRequest& request, const ComparedAt& comparedAt)
      : request_(request),
        units_(UnitsOf(candidates)),
        conditions_(candidates, request, comparedAt),
        drawn_(candidates, units_, comparedAt),
        random_(request.seed),
        allowed_(request.wishes.size()),
        outcome_{{}, std::vector<WishOutcome>(request.wishes.size()), false} {}

  DrawOutcome Run(const std::function<bool()>& isCancelled) {
    for (std::size_t wish = 0; wish < allowed_.size(); ++wish) Allow(wish, isCancelled);
    if (outcome_.isCancelled) return std::move(outcome_);
    for (const std::size_t wish : ScarcestFirst()) Fill(wish);
    for (std::size_t wish = 0; wish < allowed_.size(); ++wish) {
      while (Lacks(wish) && Balance(wish)) ++outcome_.wishes[wish].drawn;
    }
    for (std::size_t wish = 0; wish < allowed_.size(); ++wish) {
      Collect(wish);
      if (Lacks(wish)) CountElsewhere(wish);
    }
    return std::move(outcome_);
  }

  /// Another question for one wish beside those that are kept; nothing if there is none.
  std::optional<DrawnQuestion> RunOnce(const std::vector<DrawnQuestion>& kept, std::size_t wish) {
    for (const DrawnQuestion& question : kept) drawn_.Put(UnitOf(question.candidate), question.wish);
    Allow(wish, {});
    for (const std::size_t unit : allowed_[wish]) {
      if (CanCome(unit)) return Described(unit, wish);
    }
    CountElsewhere(wish);
    return std::nullopt;
  }

  const WishOutcome& OutcomeOf(std::size_t wish) const { return outcome_.wishes[wish]; }

 private:
  bool Lacks(std::size_t wish) const { return outcome_.wishes[wish].drawn < request_.wishes[wish].count; }
  bool CanCome(std::size_t unit) { return !drawn_.IsDrawn(unit) && !drawn_.IsNear(unit); }

  std::size_t UnitOf(std::size_t candidate) const {
    const auto has = [candidate](const DrawUnit& unit) {
      return std::find(unit.candidates.begin(), unit.candidates.end(), candidate) != unit.candidates.end();
    };
    return static_cast<std::size_t>(std::find_if(units_.begin(), units_.end(), has) - units_.begin());
  }

  /// Finds the units that the conditions allow for a wish, and puts them in random order.
  void Allow(std::size_t wish, const std::function<bool()>& isCancelled) {
    WishOutcome& outcome = outcome_.wishes[wish];
    for (std::size_t unit = 0; unit < units_.size() && !outcome_.isCancelled; ++unit) {
      if (unit % kUnitsBetweenPolls == 0) outcome_.isCancelled = isCancelled && isCancelled();
      const auto obstacle = conditions_.ObstacleOf(units_[unit], request_.wishes[wish]);
      if (obstacle) {
        ++outcome.excluded[*obstacle];
      } else {
        allowed_[wish].push_back(unit);
      }
    }
    outcome.allowed = allowed_[wish].size();
    random_.Shuffle(allowed_[wish]);
  }

  /// Wishes that can spare the fewest come first, so that others do not take from them.
  std::vector<std::size_t> ScarcestFirst() const {
    const auto spare = [this](std::size_t wish) {
      const std::size_t count = std::min(request_.wishes[wish].count, allowed_[wish].size());
      return allowed_[wish].size() - count;
    };
    std::vector<std::size_t> order(allowed_.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&spare](std::size_t a, std::size_t b) { return spare(a) < spare(b); });
    return order;
  }

  void Fill(std::size_t wish) {
    for (const std::size_t unit : allowed_[wish]) {
      if (!Lacks(wish)) return;
      if (!CanCome(unit)) continue;
      drawn_.Put(unit, wish);
      ++outcome_.wishes[wish].drawn;
    }
  }

  /// The unit that a wish gave to another one.
  struct Gift {
    std::size_t to = 0;
    std::size_t unit = 0;
  };

  /// Gets the wish one question more: one of another wish, which gets one from a third, and so on until a
  /// wish can take one that is not drawn yet. Finds the shortest such chain.
  bool Balance(std::size_t wish) {
    std::vector<std::optional<Gift>> gifts(allowed_.size());
    std::deque<std::size_t> asking{wish};
    for (; !asking.empty(); asking.pop_front()) {
      const std::size_t asks = asking.front();
      const auto free = std::find_if(allowed_[asks].begin(), allowed_[asks].end(),
                                     [this](std::size_t unit) { return CanCome(unit); });
      if (free != allowed_[asks].end()) {
        drawn_.Put(*free, asks);
        for (std::size_t giver = asks; giver != wish; giver = gifts[giver]->to)
          drawn_.Move(gifts[giver]->unit, gifts[giver]->to);
        return true;
      }
      for (const std::size_t unit : allowed_[asks]) {
        if (!drawn_.IsDrawn(unit)) continue;
        const std::size_t giver = drawn_.WishOf(unit);
        if (giver == wish || gifts[giver]) continue;
        gifts[giver] = Gift{asks, unit};
        asking.push_back(giver);
      }
    }
    return false;
  }

  void Collect(std::size_t wish) {
    for (const std::size_t unit : drawn_.Units()) {
      if (drawn_.WishOf(unit) == wish) outcome_.questions.push_back(Described(unit, wish));
    }
  }

  DrawnQuestion Described(std::size_t unit, std::size_t wish) const {
    const DrawUnit& of = units_[unit];
    return {of.First(),    wish,        outcome_.wishes[wish].allowed,
            of.lastUsedIn, of.lastUsed, of.candidates.size()};
  }

  /// Tells where the allowed ones are that a wish lacks.
  void CountElsewhere(std::size_t wish) {
    for (const std::size_t unit : allowed_[wish]) {
      if (drawn_.IsNear(unit)) ++outcome_.wishes[wish].excluded[DrawObstacle::NearlyDrawn];
      const bool isOthers = drawn_.IsDrawn(unit) && drawn_.WishOf(unit) != wish;
      if (isOthers) ++outcome_.wishes[wish].excluded[DrawObstacle::OtherWish];
    }
  }

  const DrawRequest& request_;
  std::vector<DrawUnit> units_;
  DrawConditions conditions_;
  DrawnUnits drawn_;
  SeededRandom random_;
  std::vector<std::vector<std::size_t>> allowed_;  // by wish: units, in random order
  DrawOutcome outcome_;
};

}  // namespace

DrawOutcome DrawQuestions(std::span<const DrawCandidate> candidates, const DrawRequest& request,
                          const ComparedAt& comparedAt, const std::function<bool()>& isCancelled) {
  return Draw(candidates, request, comparedAt).Run(isCancelled);
}

std::optional<DrawnQuestion> DrawOneMore(std::span<const DrawCandidate> candidates,
                                         const DrawRequest& request, const std::vector<DrawnQuestion>& kept,
                                         std::size_t wish, const ComparedAt& comparedAt,
                                         WishOutcome& outcome) {
  DrawRequest again = request;
  again.seed += again.rejected.size();
  Draw draw(candidates, again, comparedAt);
  std::optional<DrawnQuestion> other = draw.RunOnce(kept, wish);
  outcome = draw.OutcomeOf(wish);
  const auto isOfWish = [wish](const DrawnQuestion& question) { return question.wish == wish; };
  outcome.drawn =
      static_cast<std::size_t>(std::count_if(kept.begin(), kept.end(), isOfWish)) + (other ? 1 : 0);
  return other;
}

std::vector<DrawWish> SpreadOver(const DrawWish& wish, const std::vector<std::u16string>& tags) {
  std::vector<DrawWish> wishes;
  wishes.reserve(tags.size());
  for (std::size_t i = 0; i < tags.size(); ++i) {
    DrawWish part = wish;
    part.count = wish.count / tags.size() + (i < wish.count % tags.size() ? 1 : 0);
    part.tags.push_back(tags[i]);
    if (part.count != 0) wishes.push_back(std::move(part));
  }
  return wishes;
}

}  // namespace quorvantis
