#include "wizard/Wizard.h"

#include "view/Platform.h"

namespace Tarnwise {

namespace {

void HideForm(const std::shared_ptr<Form>& form) {
  if (form) form->Screen().Hide(*form);
}

// Drops the reference. The form lives on for as long as one of its handlers runs.
template <class StepForm>
void ReleaseForm(std::shared_ptr<StepForm>& member) {
  if (!member) return;
  const std::shared_ptr<Form> form = std::move(member);
  member.reset();
  form->Screen().Release(*form);
}

// In the middle of the screen.
void CenterForm(Form& form) {
  Toolkit& screen = form.Screen().Tools();
  form.Left = (screen.ScreenWidth() - form.Width) / 2.0F;
  form.Top = (screen.ScreenHeight() - form.Height) / 2.0F;
}

// Creates a step form in `member` and loads it. A fault while loading releases the form, brings back the one that was
// hidden for it and goes on to the handler that led here. False when an event of the loading released the form again.
template <class StepForm, class Connect>
bool CreateForm(std::shared_ptr<StepForm>& member, const std::shared_ptr<Platform>& screen, WizardData& data,
                const std::shared_ptr<Form>& hidden, Connect connect) {
  const auto form = std::make_shared<StepForm>(screen, data);
  member = form;
  screen->Created(*form);
  connect();
  const auto undo = [&] {
    if (member == form) ReleaseForm(member);
    if (hidden && !hidden->Released) screen->Show(*hidden);
  };
  try {
    form->Load();
  } catch (RuntimeError& error) {
    undo();
    error.In = form->Name + ".Form_Load";
    throw;
  } catch (...) {
    undo();
    throw;
  }
  if (member != form) return false;
  CenterForm(*form);
  return true;
}

}  // namespace

void TRN_DEA::Wizard::ShowTarnwise() {
  if (!mSelMethod && !CreateForm(mSelMethod, Screen, Data, nullptr, [this] { ConnectSelMethod(); })) return;
  Screen->Show(*std::shared_ptr<Form>(mSelMethod));
}

void TRN_DEA::Wizard::UnloadTarnwise() {
  HideForm(mIniImpOrder);
  HideForm(mTRNTradeOffsB);
  HideForm(mSelMethod);
  HideForm(mDirectB);
  ReleaseForm(mSelMethod);
  ReleaseForm(mDirectB);
  ReleaseForm(mIniImpOrder);
  ReleaseForm(mTRNTradeOffsB);
}

void TRN_DEA::Wizard::RelaySendMasseges(const String& Msg) { Raise(Events.SendMasseges, String(Msg)); }

void TRN_DEA::Wizard::RelayUnloadTarnwise(Integer fIndex, Boolean WeightsDone) {
  Raise(Events.UnloadTarnwise, fIndex, WeightsDone);
}

void TRN_DEA::Wizard::RelayExportDirectBW(const String& RJType, Integer BRefAttID, Integer CRefAttID, Variant& RefAttWR,
                                          Array<Variant>& Weights, Array<Variant>& WeightsH, Array<Variant>& WeightsL) {
  Raise(Events.ExportDirectBW, RJType, BRefAttID, CRefAttID, RefAttWR, Weights.Items(), WeightsH.Items(),
        WeightsL.Items());
}

void TRN_DEA::Wizard::mTRNTradeOffsB_ExportABScores(PointArrays& points) {
  std::apply([this](auto&... arrays) { Raise(Events.ExportABScores, arrays...); }, points);
}

void TRN_DEA::Wizard::mSelMethod_ShowTRNIniImpOrder() {
  HideForm(mSelMethod);
  if (!mIniImpOrder && !CreateForm(mIniImpOrder, Screen, Data, mSelMethod, [this] { ConnectIniImpOrder(); })) {
    return;
  }
  Screen->ShowModal(*std::shared_ptr<Form>(mIniImpOrder));
}

void TRN_DEA::Wizard::mIniImpOrder_ShowTRNDirectB() {
  HideForm(mIniImpOrder);
  if (!mDirectB && !CreateForm(mDirectB, Screen, Data, mIniImpOrder, [this] { ConnectDirectB(); })) return;
  Screen->ShowModal(*std::shared_ptr<Form>(mDirectB));
}

void TRN_DEA::Wizard::mIniImpOrder_ShowTRNTradeOffsB() {
  HideForm(mIniImpOrder);
  if (!mTRNTradeOffsB && !CreateForm(mTRNTradeOffsB, Screen, Data, mIniImpOrder, [this] { ConnectTradeOffsB(); })) {
    return;
  }
  Screen->ShowModal(*std::shared_ptr<Form>(mTRNTradeOffsB));
}

void TRN_DEA::Wizard::mIniImpOrder_ShowTRNSelMethod() {
  mIniImpOrder_UnloadIniImpOrder();
  if (mSelMethod) Screen->Show(*std::shared_ptr<Form>(mSelMethod));
}

void TRN_DEA::Wizard::mIniImpOrder_UnloadIniImpOrder() {
  HideForm(mIniImpOrder);
  ReleaseForm(mIniImpOrder);
}

void TRN_DEA::Wizard::mDirectB_UnloadDirectB() {
  HideForm(mDirectB);
  if (mIniImpOrder) Screen->Show(*std::shared_ptr<Form>(mIniImpOrder));
  ReleaseForm(mDirectB);
}

void TRN_DEA::Wizard::mTRNTradeOffsB_UnloadTRNTradeOffsB() {
  HideForm(mTRNTradeOffsB);
  if (mIniImpOrder) Screen->Show(*std::shared_ptr<Form>(mIniImpOrder));
  ReleaseForm(mTRNTradeOffsB);
}

// A form's event reaches the class only for as long as the class lives and holds the form: the host may let the object
// go inside any event. Each handler keeps the class alive while it runs.
namespace {

template <class Wizard, class Method>
auto Bound(Wizard& wizard, Method method) {
  return [weak = wizard.weak_from_this(), method](auto&&... arguments) {
    if (const auto held = weak.lock()) ((*held).*method)(std::forward<decltype(arguments)>(arguments)...);
  };
}

}  // namespace

void TRN_DEA::Wizard::ConnectSelMethod() {
  mSelMethod->UnloadTarnwise = Bound(*this, &Wizard::RelayUnloadTarnwise);
  mSelMethod->ShowTRNIniImpOrder = Bound(*this, &Wizard::mSelMethod_ShowTRNIniImpOrder);
  mSelMethod->SendMasseges = Bound(*this, &Wizard::RelaySendMasseges);
}

void TRN_DEA::Wizard::ConnectIniImpOrder() {
  mIniImpOrder->UnloadTarnwise = Bound(*this, &Wizard::RelayUnloadTarnwise);
  mIniImpOrder->UnloadIniImpOrder = Bound(*this, &Wizard::mIniImpOrder_UnloadIniImpOrder);
  mIniImpOrder->ShowTRNDirectB = Bound(*this, &Wizard::mIniImpOrder_ShowTRNDirectB);
  mIniImpOrder->ShowTRNSelMethod = Bound(*this, &Wizard::mIniImpOrder_ShowTRNSelMethod);
  mIniImpOrder->ShowTRNTradeOffsB = Bound(*this, &Wizard::mIniImpOrder_ShowTRNTradeOffsB);
  mIniImpOrder->SendMasseges = Bound(*this, &Wizard::RelaySendMasseges);
}

void TRN_DEA::Wizard::ConnectDirectB() {
  mDirectB->UnloadTarnwise = Bound(*this, &Wizard::RelayUnloadTarnwise);
  mDirectB->UnloadDirectB = Bound(*this, &Wizard::mDirectB_UnloadDirectB);
  mDirectB->ExportDirectBW = Bound(*this, &Wizard::RelayExportDirectBW);
  mDirectB->SendMasseges = Bound(*this, &Wizard::RelaySendMasseges);
}

void TRN_DEA::Wizard::ConnectTradeOffsB() {
  mTRNTradeOffsB->UnloadTarnwise = Bound(*this, &Wizard::RelayUnloadTarnwise);
  mTRNTradeOffsB->UnloadTRNTradeOffsB = Bound(*this, &Wizard::mTRNTradeOffsB_UnloadTRNTradeOffsB);
  mTRNTradeOffsB->ExportTradeOffsBW = Bound(*this, &Wizard::RelayExportDirectBW);
  mTRNTradeOffsB->ExportABScores = Bound(*this, &Wizard::mTRNTradeOffsB_ExportABScores);
  mTRNTradeOffsB->SendMasseges = Bound(*this, &Wizard::RelaySendMasseges);
}

}  // namespace Tarnwise
