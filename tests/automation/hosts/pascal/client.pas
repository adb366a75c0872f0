{ SPDX-FileCopyrightText: The KOBTraduction authors
  A host in another language and with another compiler: it calls the registered component late-bound, and its own form
  has IDispatch alone, as the forms of classic hosts. Prints FIN at its end; a check that fails ends it with status 1. }
program client;

{$mode objfpc}{$H+}

uses
  Windows, SysUtils, Variants, ActiveX, ComObj;

type
  { A live object: properties by name, kept as they are given. }
  TLive = class(TInterfacedObject, IDispatch)
  private
    FNames: array of WideString;
    FValues: array of OleVariant;
    function Find(const AName: WideString): Integer;
  public
    procedure Define(const AName: WideString; const AValue: OleVariant);
    function Value(const AName: WideString): OleVariant;
    function GetTypeInfoCount(out ACount: LongInt): HResult; stdcall;
    function GetTypeInfo(AIndex, ALocale: LongInt; out ATypeInfo): HResult; stdcall;
    function GetIDsOfNames(const AInterface: TGUID; ANames: Pointer; ACount, ALocale: LongInt; AIds: Pointer): HResult;
      stdcall;
    function Invoke(AId: LongInt; const AInterface: TGUID; ALocale: LongInt; AFlags: Word; var AParams;
      AResult, AException, AError: Pointer): HResult; virtual; stdcall;
  end;

  { A collection: Count and a default item, from 1. }
  TLiveList = class(TLive)
  private
    FItems: array of OleVariant;
  public
    procedure Add(const AItem: OleVariant);
    function Invoke(AId: LongInt; const AInterface: TGUID; ALocale: LongInt; AFlags: Word; var AParams;
      AResult, AException, AError: Pointer): HResult; override; stdcall;
  end;

procedure Check(const AWhat: String; AHolds: Boolean);
begin
  if not AHolds then
  begin
    WriteLn('FAILED: ', AWhat);
    Halt(1);
  end;
end;

function TLive.Find(const AName: WideString): Integer;
begin
  for Result := 0 to High(FNames) do
    if WideCompareText(FNames[Result], AName) = 0 then
      Exit;
  Result := -1;
end;

procedure TLive.Define(const AName: WideString; const AValue: OleVariant);
begin
  SetLength(FNames, Length(FNames) + 1);
  SetLength(FValues, Length(FNames));
  FNames[High(FNames)] := AName;
  FValues[High(FValues)] := AValue;
end;

function TLive.Value(const AName: WideString): OleVariant;
begin
  Result := FValues[Find(AName)];
end;

function TLive.GetTypeInfoCount(out ACount: LongInt): HResult; stdcall;
begin
  ACount := 0;
  Result := S_OK;
end;

function TLive.GetTypeInfo(AIndex, ALocale: LongInt; out ATypeInfo): HResult; stdcall;
begin
  Pointer(ATypeInfo) := nil;
  Result := E_NOTIMPL;
end;

function TLive.GetIDsOfNames(const AInterface: TGUID; ANames: Pointer; ACount, ALocale: LongInt;
  AIds: Pointer): HResult; stdcall;
var
  Place: Integer;
begin
  Place := Find(WideString(PPWideChar(ANames)^));
  PLongInt(AIds)^ := Place + 1;
  Result := S_OK;
  if Place < 0 then
  begin
    PLongInt(AIds)^ := -1;
    Result := DISP_E_UNKNOWNNAME;
  end;
end;

function TLive.Invoke(AId: LongInt; const AInterface: TGUID; ALocale: LongInt; AFlags: Word; var AParams;
  AResult, AException, AError: Pointer): HResult; stdcall;
var
  Params: TDispParams absolute AParams;
begin
  if (AId < 1) or (AId > Length(FValues)) then
    Exit(DISP_E_MEMBERNOTFOUND);
  if (AFlags and (DISPATCH_PROPERTYPUT or DISPATCH_PROPERTYPUTREF)) <> 0 then
    FValues[AId - 1] := POleVariant(@Params.rgvarg^[0])^
  else if Params.cArgs > 0 then
    Exit(DISP_E_BADPARAMCOUNT)
  else if AResult <> nil then
    POleVariant(AResult)^ := FValues[AId - 1];
  Result := S_OK;
end;

procedure TLiveList.Add(const AItem: OleVariant);
begin
  SetLength(FItems, Length(FItems) + 1);
  FItems[High(FItems)] := AItem;
  if Length(FItems) = 1 then
    Define('Count', 1)
  else
    FValues[Find('Count')] := Length(FItems);
end;

function TLiveList.Invoke(AId: LongInt; const AInterface: TGUID; ALocale: LongInt; AFlags: Word; var AParams;
  AResult, AException, AError: Pointer): HResult; stdcall;
var
  Params: TDispParams absolute AParams;
  Place: Integer;
begin
  if AId <> DISPID_VALUE then
    Exit(inherited Invoke(AId, AInterface, ALocale, AFlags, AParams, AResult, AException, AError));
  if Params.cArgs <> 1 then
    Exit(DISP_E_BADPARAMCOUNT);
  Place := POleVariant(@Params.rgvarg^[0])^;
  if (Place < 1) or (Place > Length(FItems)) then
    Exit(DISP_E_BADINDEX);
  if AResult <> nil then
    POleVariant(AResult)^ := FItems[Place - 1];
  Result := S_OK;
end;

function NewControl(const AName, ACaption, ATip: WideString; const AContainer: IDispatch): TLive;
begin
  Result := TLive.Create;
  Result.Define('Name', AName);
  Result.Define('Caption', ACaption);
  Result.Define('ToolTipText', ATip);
  Result.Define('tag', WideString(''));
  Result.Define('left', 120);
  Result.Define('width', 1000);
  Result.Define('Container', AContainer);
end;

procedure CheckMembers;
var
  Model, Root, Cell, Entry: OleVariant;
  Refusal: LongInt;
  Raised: Boolean;
begin
  Model := CreateOleObject('KOBTraduction.KOBModeleTraduction');
  Check('languages', Model.NbLangues = 6);
  Model.NbLangues := 7;
  Check('more languages', Model.NbLangues = 7);
  Root := Model.Racine;
  Check('the root', Root.nom = 'RACINE');

  Refusal := 0;
  Cell := Root.AddNoeuds(WideString('b'), Refusal);
  Check('added', (Cell.nom = 'b') and (Refusal = 0));
  Cell := Root.AddNoeuds(WideString('B'), Refusal);
  Check('refused', VarIsNull(Cell) or VarIsEmpty(Cell) or (IDispatch(Cell) = nil));
  Check('the refusal is told by reference', Refusal = -2);
  Cell := Root.AddNoeuds(NomNoeud := WideString('a'), AliasNoeud := 'First');
  Check('named arguments', (Cell.nom = 'a') and (Cell.Alias = 'First'));
  Check('count', Root.ColCell.Count = 2);
  Check('item', Root.ColCell.Item[1].nom = 'a');

  Cell := Root.AddMessage('Titre', WideString('H'#$00E9'llo'));
  Check('text', Model.GetTraduction('Titre', 2) = WideString('H'#$00E9'llo'));
  Entry := Cell.Traduction;
  Entry.ChangeTraduction('Hi', 2);
  Check('translated', Model.GetTraduction('Titre', 2) = 'Hi');

  Raised := False;
  try
    Model.GetTraduction('Titre', 99);
  except
    on Failure: EOleException do
      Raised := (LongWord(Failure.ErrorCode) = $800A0009) and (Failure.Message <> '') and (Failure.Source <> '');
  end;
  Check('an error arrives with number, text and source', Raised);
  Check('the next call is well', Model.NbLangues = 7);
  Cell.TypeFeuille := 2;
  Cell.ChangeLeft(1.25, 2);
  Check('factor', Cell.ColLeft.Item[2] = 1.25);
end;

procedure CheckForm;
var
  Model, Path: OleVariant;
  Form, Frame, Button: TLive;
  Controls: TLiveList;
  FormRef, FrameRef, ButtonRef, ControlsRef: IDispatch;
begin
  Form := TLive.Create;
  FormRef := Form;
  Form.Define('Name', WideString('Fiche'));
  Form.Define('Caption', WideString('Accueil'));
  Form.Define('tag', WideString(''));
  Form.Define('width', 6000);
  Frame := NewControl('Cadre', 'Cadre', '', FormRef);
  FrameRef := Frame;
  Button := NewControl('cmdOk', '&OK', 'Valide', FrameRef);
  ButtonRef := Button;
  Button.Define('Index', 2);
  Controls := TLiveList.Create;
  ControlsRef := Controls;
  Controls.Add(FrameRef);
  Controls.Add(ButtonRef);
  Form.Define('Controls', ControlsRef);

  Model := CreateOleObject('KOBTraduction.KOBModeleTraduction');
  Model.UpdateWithForm(FormRef);
  Path := Model.GetPath(ButtonRef, 'Module');
  Check('path', Path = 'Module\Fiche\Cadre\cmdOk(2)');
  Check('cell', Model.GetCell('Fiche\Cadre\cmdOk(2)').m_left = 1);
  Model.UpdateTestLangue(3);
  Model.TraduitDialog(FormRef, 3);
  Check('form', Form.Value('Caption') = '** Accueil **');
  Check('frame', Frame.Value('Caption') = '** Cadre **');
  Check('button', Button.Value('Caption') = '** &OK **');
  Check('tool tip', Button.Value('ToolTipText') = '** Valide **');
  Model.GetCell('Fiche\Cadre\cmdOk(2)').ChangeWidth(1.5, 4);
  Model.TraduitControle(ButtonRef, 4);
  Check('back in the language of the form', Button.Value('Caption') = '&OK');
  Check('width', Button.Value('width') = 1500);
end;

begin
  CheckMembers;
  CheckForm;
  WriteLn('FIN');
end.
