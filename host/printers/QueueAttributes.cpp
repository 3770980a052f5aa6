// SPDX-License-Identifier: Apache-2.0
// Reads offers out of an answer.

#include "host/printers/QueueAttributes.h"

namespace orvek {
namespace {

std::optional<SettingOffer> offerFrom(Fields fields) {
  SettingOffer offer{fields.text("attribute"), fields.text("title"), {}, fields.text("standard")};
  const QStringList keywords = fields.texts("keywords");
  const QStringList titles = fields.texts("titles");
  if (!fields.isSound() || keywords.size() != titles.size()) return std::nullopt;
  for (qsizetype i = 0; i < keywords.size(); ++i) {
    offer.choices << SettingChoice{keywords[i], titles[i]};
  }
  return offer;
}

Result<QList<SettingOffer>> readOffers(ServerTalk &talk, const QString &queue, bool isOfJobs) {
  auto answer = talk.ask(ServerTask::Settings, {{QLatin1String("queue"), fieldOf(queue)},
                                                {QLatin1String("ofJobs"), isOfJobs}});
  if (!answer) return answer.failure();
  QList<SettingOffer> offers;
  for (const QCborValue found : answer.value().list("offers")) {
    const auto offer = offerFrom(Fields(found));
    if (!offer) return talk.unreadable();
    offers << *offer;
  }
  return answer.value().isSound() ? Result<QList<SettingOffer>>(offers) : talk.unreadable();
}

}  // namespace

Result<QList<SettingOffer>> readQueueSettings(ServerTalk &talk, const QString &queue) {
  return readOffers(talk, queue, false);
}

Result<QList<SettingOffer>> readJobSettings(ServerTalk &talk, const QString &queue) {
  return readOffers(talk, queue, true);
}

Result<QList<SettingOffer>> readQueueSettings(const ServerAccess &access, const QString &queue) {
  const auto talk = ServerTalk::open(access);
  if (!talk) return talk.failure();
  return readQueueSettings(*talk.value(), queue);
}

}  // namespace orvek
