<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="ko_KR">
<context>
    <name>Localizable_M420</name>
    <message>
        <source>영어</source>
        <translation>Inglês</translation>
    </message>
    <message>
        <source>프랑스어</source>
        <translation>Francês</translation>
    </message>
    <message>
        <source>일본어</source>
        <translation>Japonês</translation>
    </message>
    <message>
        <source>언어</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>속도 단위</source>
        <translation>Unidade de velocidade</translation>
    </message>
    <message>
        <source>KM/H</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>MPH</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>파일_전체</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>파일_상시</source>
        <translation>Contínuo</translation>
    </message>
    <message>
        <source>파일_모션</source>
        <translation>Movimento</translation>
    </message>
    <message>
        <source>파일_이벤트</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>파일_수동</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>열기</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>저장</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>확인</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>아니오</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>예</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>메모리카드 오류</source>
        <translation>Erro no cartão de memória</translation>
    </message>
    <message>
        <source>메모리카드를 확인하여 주시기 바랍니다.</source>
        <translation>Verifique o cartão de memória.</translation>
    </message>
    <message>
        <source>지원하지 않는 형식으로 인코딩된 동영상입니다.</source>
        <translation>Este vídeo está codificado em um formato não suportado.</translation>
    </message>
    <message>
        <source>주차모드</source>
        <translation>Modo estacionamento</translation>
    </message>
    <message>
        <source>주차모드를 사용하지 않는 경우,
차량 시동이 꺼지면 주차 중 녹화가 되지 않습니다.
주차모드 사용을 해제 하시겠습니까?</source>
        <translation>Sem o modo estacionamento,
nada é gravado com o veículo estacionado e o motor desligado.
Desativar o modo estacionamento?</translation>
    </message>
    <message>
        <source>주차모션 선택 시,
타임랩스 영상이 삭제되고 주차모션 영상이 저장됩니다.
적용하시겠습니까?</source>
        <translation>Com a detecção de movimento no estacionamento,
os vídeos em time-lapse são excluídos e os vídeos de movimento são salvos.
Aplicar?</translation>
    </message>
    <message>
        <source>타임랩스 선택 시 
주차모션 영상이 삭제되고 주차모드 및 주차충격 영상이 타임랩스로 저장됩니다.
적용하시겠습니까?</source>
        <translation>Com o time-lapse,
os vídeos de movimento são excluídos e os vídeos de estacionamento e de impacto no estacionamento são salvos em time-lapse.
Aplicar?</translation>
    </message>
    <message>
        <source>메모리 카드 포멧</source>
        <translation>Formatar cartão de memória</translation>
    </message>
    <message>
        <source>주의 : 포맷 시 메모리 카드의 모든 데이터가 삭제됩니다.</source>
        <translation>Atenção: a formatação apaga todos os dados do cartão de memória.</translation>
    </message>
    <message>
        <source>주의 : 포맷 시 메모리 카드의 모든 데이터가 삭제됩니다. &#xd;
포맷하려면 (예)를, 취소하려면 (아니오)를 선택 하십시오.</source>
        <translation>Atenção: a formatação apaga todos os dados do cartão de memória. &#xd;
Escolha (Sim) para formatar ou (Não) para cancelar.</translation>
    </message>
    <message>
        <source>포맷 중 입니다.&#xd;
잠시만 기다려 주십시오.</source>
        <translation>Formatando...&#xd;
Aguarde.</translation>
    </message>
    <message>
        <source>메모리 카드 포맷이 완료 되었습니다.</source>
        <translation>A formatação do cartão de memória foi concluída.</translation>
    </message>
    <message>
        <source>메모리 카드를 포멧할 수 없습니다.</source>
        <translation>Não é possível formatar o cartão de memória.</translation>
    </message>
    <message>
        <source>메모리 카드를 포멧할 수 없습니다.&#xd;
&#xd;
TARVIK VIEWR에서 동영상을 재생 중이거나 GPS 데이터를 수집중인 경우&#xd;
TARVIK VIEWER를 종료하고 다시 포맷하십시오.&#xd;
메모리카드를 사용하고 있는 디스크 유틸리티나 다른 프로그램을 종료하고&#xd;
메모리카드의 내용을 표시하고 있는 창이 없는지 확인한 다음 다시 포맷하십시오.</source>
        <translation>Não é possível formatar o cartão de memória.&#xd;
&#xd;
Se o TARVIK VIEWER estiver reproduzindo um vídeo ou coletando dados de GPS,&#xd;
feche o TARVIK VIEWER e formate novamente.&#xd;
Feche o utilitário de disco ou outros programas que estejam usando o cartão de memória,&#xd;
verifique se nenhuma janela exibe o conteúdo do cartão e formate novamente.</translation>
    </message>
    <message>
        <source>초기화하기</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>주의 : 현재 설정된 화면 터치 정확도 값이 초기화 됩니다.</source>
        <translation>Atenção: a calibração atual da tela sensível ao toque será redefinida.</translation>
    </message>
    <message>
        <source>주의 : 현재 설정된 화면 터치 정확도 값이 초기화 됩니다. &#xd;
초기화하려면 (예)를, 취소하려면 (아니오)를 선택 하십시오.</source>
        <translation>Atenção: a calibração atual da tela sensível ao toque será redefinida. &#xd;
Escolha (Sim) para redefinir ou (Não) para cancelar.</translation>
    </message>
    <message>
        <source>플래시 메모리를 선택해주세요.</source>
        <translation>Selecione a memória flash.</translation>
    </message>
    <message>
        <source>Norvane 블랙박스 정보를 읽을 수 없습니다.
모델명을 선택하면 기본 설정 값을 적용 할 수 있습니다.</source>
        <translation>Não foi possível ler as informações da dashcam Norvane.
Selecione o modelo para aplicar as configurações padrão.</translation>
    </message>
    <message>
        <source>블랙박스 설정</source>
        <translation>Configurações da dashcam</translation>
    </message>
    <message>
        <source>설정값 초기화</source>
        <translation>Restaurar padrão</translation>
    </message>
    <message>
        <source>Q260 : 메모리 파티션</source>
        <translation>Partição da memória</translation>
    </message>
    <message>
        <source>A Type(권장)</source>
        <translation>Tipo A (recomendado)</translation>
    </message>
    <message>
        <source>B Type</source>
        <translation>Tipo B</translation>
    </message>
    <message>
        <source>C Type</source>
        <translation>Tipo C</translation>
    </message>
    <message>
        <source>Q260 : 상시녹화</source>
        <translation>Contínua</translation>
    </message>
    <message>
        <source>Q260 : 주차녹화</source>
        <translation>Estacionamento</translation>
    </message>
    <message>
        <source>Q260 : 이벤트녹화</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Q260 : 수동녹화</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Q260 : 자동주차모드</source>
        <translation>Estacionamento automático</translation>
    </message>
    <message>
        <source>Q260 : 사용 함</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>Q260 : 사용 안 함</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>(시동이 꺼지면 주차 녹화 모드로 전환합니다</source>
        <translation>(passa para a gravação de estacionamento com o motor desligado</translation>
    </message>
    <message>
        <source>(시동이 꺼지면 블랙박스를 종료합니다</source>
        <translation>(desliga a dashcam com o motor desligado</translation>
    </message>
    <message>
        <source>Q260 : 녹화종료전압</source>
        <translation>Tensão de corte</translation>
    </message>
    <message>
        <source>Q260 : 날짜 / 시간</source>
        <translation>Data / Hora</translation>
    </message>
    <message>
        <source>현재 시간 가져오기</source>
        <translation>Hora atual</translation>
    </message>
    <message>
        <source>Q260 : 표준 시간대</source>
        <translation>Fuso horário</translation>
    </message>
    <message>
        <source>Q260 : Daylight Saving Time</source>
        <translation>Horário de verão</translation>
    </message>
    <message>
        <source>속도표시</source>
        <translation>Exibição de velocidade</translation>
    </message>
    <message>
        <source>kph</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>mph</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>Q260 : 음성녹음</source>
        <translation>Gravação de áudio</translation>
    </message>
    <message>
        <source>Q260 : 음성안내</source>
        <translation>Orientação por voz</translation>
    </message>
    <message>
        <source>Q260 : 작게</source>
        <translation>Baixo</translation>
    </message>
    <message>
        <source>Q260 : 크게</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Q260 : 충격감도</source>
        <translation>Sensibilidade a impactos</translation>
    </message>
    <message>
        <source>Q260 : 둔감</source>
        <translation>Baixa</translation>
    </message>
    <message>
        <source>Q260 : 민감</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Q260 : 모션인식감도</source>
        <translation>Sensibilidade de movimento</translation>
    </message>
    <message>
        <source>시큐리티 LED</source>
        <translation>LED de segurança</translation>
    </message>
    <message>
        <source>Q260 : 펌웨어 버전</source>
        <translation>Versão do firmware</translation>
    </message>
    <message>
        <source>Q260 : Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Q260 : Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>(UTC-10:00) Hawaii</source>
        <translation>(UTC-10:00) Havaí</translation>
    </message>
    <message>
        <source>(UTC-09:00) Alaska</source>
        <translation>(UTC-09:00) Alasca</translation>
    </message>
    <message>
        <source>(UTC-08:00) Pacific Standard Time (U.S.A and Canada)</source>
        <translation>(UTC-08:00) Hora do Pacífico (EUA e Canadá)</translation>
    </message>
    <message>
        <source>(UTC-07:00) Mountain Standard Time (U.S.A and Canada)</source>
        <translation>(UTC-07:00) Hora das Montanhas (EUA e Canadá)</translation>
    </message>
    <message>
        <source>(UTC-06:00) Central Standard Time (U.S.A and Canada)</source>
        <translation>(UTC-06:00) Hora Central (EUA e Canadá)</translation>
    </message>
    <message>
        <source>(UTC-05:00) Eastern Standard Time (U.S.A and Canada)</source>
        <translation>(UTC-05:00) Hora do Leste (EUA e Canadá)</translation>
    </message>
    <message>
        <source>(UTC-04:00) Atlantic  Standard Time (Canada)</source>
        <translation>(UTC-04:00) Hora do Atlântico (Canadá)</translation>
    </message>
    <message>
        <source>(UTC) Greenwich</source>
        <translation>(UTC) Greenwich</translation>
    </message>
    <message>
        <source>(UTC+01:00) Brussels, Copenhagen, Madrid, Paris</source>
        <translation>(UTC+01:00) Bruxelas, Copenhague, Madri, Paris</translation>
    </message>
    <message>
        <source>(UTC+08:00) Kuala Lumpur, Singapore</source>
        <translation>(UTC+08:00) Kuala Lumpur, Singapura</translation>
    </message>
    <message>
        <source>(UTC+09:30) Adelaide</source>
        <translation>(UTC+09:30) Adelaide</translation>
    </message>
    <message>
        <source>(UTC+10:00) Canberra, Melbourne, Sidney</source>
        <translation>(UTC+10:00) Camberra, Melbourne, Sydney</translation>
    </message>
    <message>
        <source>이전 파일</source>
        <translation>Clipe anterior</translation>
    </message>
    <message>
        <source>이전 프레임</source>
        <translation>Quadro anterior</translation>
    </message>
    <message>
        <source>재생/일시정지</source>
        <translation>Reproduzir/Pausar</translation>
    </message>
    <message>
        <source>정지</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>다음 프레임</source>
        <translation>Próximo quadro</translation>
    </message>
    <message>
        <source>다음 파일</source>
        <translation>Próximo clipe</translation>
    </message>
    <message>
        <source>스냅샷 저장</source>
        <translation>Salvar instantâneo</translation>
    </message>
    <message>
        <source>인쇄</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>확대</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>축소</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>원래 크기</source>
        <translation>Tamanho original</translation>
    </message>
    <message>
        <source>상하 반전</source>
        <translation>Inverter a imagem</translation>
    </message>
    <message>
        <source>전방/후방 전환</source>
        <translation>Trocar frente e traseira</translation>
    </message>
    <message>
        <source>전체 화면</source>
        <translation>Tela cheia</translation>
    </message>
    <message>
        <source>전체 화면 종료</source>
        <translation>Sair da tela cheia</translation>
    </message>
    <message>
        <source>음소거</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>음량</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>최소화</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>종료</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>삭제</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>동영상 파일을 찾을 수 없습니다.</source>
        <translation>O arquivo de vídeo não foi encontrado.</translation>
    </message>
    <message>
        <source>동영상 파일을 읽을 수 없습니다.</source>
        <translation>Não é possível ler o arquivo de vídeo.</translation>
    </message>
    <message>
        <source>동영상 파일이 비어 있습니다.</source>
        <translation>O arquivo de vídeo está vazio.</translation>
    </message>
    <message>
        <source>동영상 파일이 중간에 잘려 있습니다.</source>
        <translation>O arquivo de vídeo está truncado.</translation>
    </message>
    <message>
        <source>휴지통으로 옮길까요?</source>
        <translation>Mover para a lixeira?</translation>
    </message>
    <message>
        <source>재생 중인 영상은 삭제할 수 없습니다.</source>
        <translation>Um vídeo em reprodução não pode ser excluído.</translation>
    </message>
    <message>
        <source>휴지통으로 옮기지 못했습니다.</source>
        <translation>Não foi possível mover o vídeo para a lixeira.</translation>
    </message>
    <message>
        <source>공통</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>상시녹화</source>
        <translation>Gravação contínua</translation>
    </message>
    <message>
        <source>주차녹화</source>
        <translation>Gravação em estacionamento</translation>
    </message>
    <message>
        <source>기타</source>
        <translation>Outros</translation>
    </message>
    <message>
        <source>전방 밝기</source>
        <translation>Brilho dianteiro</translation>
    </message>
    <message>
        <source>음성 녹음</source>
        <translation>Gravação de áudio</translation>
    </message>
    <message>
        <source>음성 안내</source>
        <translation>Guia de voz</translation>
    </message>
    <message>
        <source>음성 안내 볼륨</source>
        <translation>Volume do guia de voz</translation>
    </message>
    <message>
        <source>표준 시간대</source>
        <translation>Fuso horário</translation>
    </message>
    <message>
        <source>서머타임</source>
        <translation>Horário de verão</translation>
    </message>
    <message>
        <source>운전 가이드</source>
        <translation>Guia de condução</translation>
    </message>
    <message>
        <source>LCD 밝기</source>
        <translation>Brilho do ecrã</translation>
    </message>
    <message>
        <source>날짜 / 시간 설정</source>
        <translation>Acertar data e hora</translation>
    </message>
    <message>
        <source>전방 해상도</source>
        <translation>Resolução dianteira</translation>
    </message>
    <message>
        <source>프레임</source>
        <translation>Fotogramas por segundo</translation>
    </message>
    <message>
        <source>전방 화질</source>
        <translation>Qualidade dianteira</translation>
    </message>
    <message>
        <source>후방 해상도</source>
        <translation>Resolução traseira</translation>
    </message>
    <message>
        <source>후방 화질</source>
        <translation>Qualidade traseira</translation>
    </message>
    <message>
        <source>충격 감도</source>
        <translation>Sensibilidade ao impacto</translation>
    </message>
    <message>
        <source>차선이탈 경보</source>
        <translation>Aviso de saída de faixa</translation>
    </message>
    <message>
        <source>차선이탈 경보 속도</source>
        <translation>Velocidade do aviso de saída de faixa</translation>
    </message>
    <message>
        <source>전방추돌 경보</source>
        <translation>Aviso de colisão frontal</translation>
    </message>
    <message>
        <source>앞차 출발 알림</source>
        <translation>Partida do veículo da frente</translation>
    </message>
    <message>
        <source>주차모션</source>
        <translation>Movimento em estacionamento</translation>
    </message>
    <message>
        <source>타임랩스</source>
        <translation>Time-lapse</translation>
    </message>
    <message>
        <source>사용</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>사용 안 함</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>모션 감지</source>
        <translation>Deteção de movimento</translation>
    </message>
    <message>
        <source>모션 감도</source>
        <translation>Sensibilidade ao movimento</translation>
    </message>
    <message>
        <source>주차 녹화 시간</source>
        <translation>Tempo de gravação em estacionamento</translation>
    </message>
    <message>
        <source>배터리 차단 전압 12V</source>
        <translation>Tensão de corte da bateria 12V</translation>
    </message>
    <message>
        <source>배터리 차단 전압 24V</source>
        <translation>Tensão de corte da bateria 24V</translation>
    </message>
    <message>
        <source>상시 충격 덮어쓰기</source>
        <translation>Substituir impactos contínuos</translation>
    </message>
    <message>
        <source>주차 모션 덮어쓰기</source>
        <translation>Substituir movimentos em estacionamento</translation>
    </message>
    <message>
        <source>주차 충격 덮어쓰기</source>
        <translation>Substituir impactos em estacionamento</translation>
    </message>
    <message>
        <source>수동 녹화 덮어쓰기</source>
        <translation>Substituir gravações manuais</translation>
    </message>
    <message>
        <source>보안 LED</source>
        <translation>LED de segurança</translation>
    </message>
    <message>
        <source>모드 1</source>
        <translation>Modo 1</translation>
    </message>
    <message>
        <source>모드 2</source>
        <translation>Modo 2</translation>
    </message>
    <message>
        <source>모드 3</source>
        <translation>Modo 3</translation>
    </message>
    <message>
        <source>메모리 분할</source>
        <translation>Partição da memória</translation>
    </message>
    <message>
        <source>기본</source>
        <translation>Padrão</translation>
    </message>
    <message>
        <source>수동 우선</source>
        <translation>Manual primeiro</translation>
    </message>
    <message>
        <source>주차 우선</source>
        <translation>Estacionamento primeiro</translation>
    </message>
    <message>
        <source>상시</source>
        <translation>Contínua</translation>
    </message>
    <message>
        <source>상시 충격</source>
        <translation>Impacto contínuo</translation>
    </message>
    <message>
        <source>주차 모션</source>
        <translation>Movimento em estacionamento</translation>
    </message>
    <message>
        <source>주차 충격</source>
        <translation>Impacto em estacionamento</translation>
    </message>
    <message>
        <source>수동</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>화면 터치 초기화</source>
        <translation>Repor a calibração do toque</translation>
    </message>
    <message>
        <source>켜짐</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>꺼짐</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>낮음</source>
        <translation>Baixa</translation>
    </message>
    <message>
        <source>보통</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>높음</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Recording time</source>
        <translation>Hora da gravação</translation>
    </message>
    <message>
        <source>Cannot be played</source>
        <translation>Não pode ser reproduzido</translation>
    </message>
    <message>
        <source>Front without rear</source>
        <translation>Dianteira sem traseira</translation>
    </message>
    <message>
        <source>Rear without front</source>
        <translation>Traseira sem dianteira</translation>
    </message>
    <message>
        <source>No driving data</source>
        <translation>Sem dados de condução</translation>
    </message>
    <message>
        <source>Gap in the recording</source>
        <translation>Interrupção na gravação</translation>
    </message>
    <message>
        <source>Settings files</source>
        <translation>Ficheiros de definições</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Espaço livre</translation>
    </message>
    <message>
        <source>Card report</source>
        <translation>Relatório do cartão</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Ocorrência</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detalhe</translation>
    </message>
    <message>
        <source>Checking every clip on the card...</source>
        <translation>A verificar todos os vídeos do cartão...</translation>
    </message>
    <message>
        <source>no settings files</source>
        <translation>sem ficheiros de definições</translation>
    </message>
    <message>
        <source>settings file unreadable</source>
        <translation>ficheiro de definições ilegível</translation>
    </message>
    <message>
        <source>settings readable</source>
        <translation>definições legíveis</translation>
    </message>
    <message>
        <source>, %1 bytes</source>
        <translation>, %1 bytes</translation>
    </message>
    <message>
        <source>All is well</source>
        <translation>Está tudo bem</translation>
    </message>
    <message>
        <source>Export route</source>
        <translation>Exportar percurso</translation>
    </message>
    <message>
        <source>Show clips</source>
        <translation>Mostrar vídeos</translation>
    </message>
    <message>
        <source>Show trips</source>
        <translation>Mostrar viagens</translation>
    </message>
    <message>
        <source>Export route of the selected clips...</source>
        <translation>Exportar o percurso dos vídeos selecionados...</translation>
    </message>
    <message>
        <source>Export route of the whole trip...</source>
        <translation>Exportar o percurso da viagem inteira...</translation>
    </message>
    <message>
        <source>Card report...</source>
        <translation>Relatório do cartão...</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fim</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Duração</translation>
    </message>
    <message numerus="yes">
        <source>%n clips</source>
        <translation>
            <numerusform>%n vídeo</numerusform>
            <numerusform>%n vídeos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n trips</source>
        <translation>
            <numerusform>%n viagem</numerusform>
            <numerusform>%n viagens</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n things need attention</source>
        <translation>
            <numerusform>%n ponto a verificar</numerusform>
            <numerusform>%n pontos a verificar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n notes</source>
        <translation>
            <numerusform>%n observação</numerusform>
            <numerusform>%n observações</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing needs attention</source>
        <translation>Nada a verificar</translation>
    </message>
    <message>
        <source>%1 in %2  ·  %3 of %4 GiB free  ·  %5</source>
        <translation>%1 em %2  ·  %3 de %4 GiB livres  ·  %5</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Pasta não encontrada</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>Esta pasta não existe.</translation>
    </message>
    <message>
        <source>Trips</source>
        <translation>Viagens</translation>
    </message>
    <message>
        <source>Export route of the playing trip...</source>
        <translation>Exportar o trajeto da viagem em reprodução...</translation>
    </message>
    <message>
        <source>Export route of this trip...</source>
        <translation>Exportar o trajeto desta viagem...</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) does not answer.</source>
        <translation>O serviço de discos (UDisks2) não responde.</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) does not know the device mounted here.</source>
        <translation>O serviço de discos (UDisks2) não conhece o dispositivo montado aqui.</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) finds no file system on the card.</source>
        <translation>O serviço de discos (UDisks2) não encontra nenhum sistema de ficheiros no cartão.</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) says the card's drive is not removable.</source>
        <translation>Segundo o serviço de discos (UDisks2), a unidade do cartão não é removível.</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) said: %1</source>
        <translation>O serviço de discos (UDisks2) respondeu: %1</translation>
    </message>
    <message>
        <source>The card is in use by another program.</source>
        <translation>O cartão está a ser usado por outro programa.</translation>
    </message>
    <message>
        <source>Formatting the card was not authorised.</source>
        <translation>A formatação do cartão não foi autorizada.</translation>
    </message>
    <message>
        <source>This folder is not where a card is mounted.</source>
        <translation>Esta pasta não é onde um cartão está montado.</translation>
    </message>
    <message>
        <source>This volume holds the system or your home folder.</source>
        <translation>Este volume contém o sistema ou a sua pasta pessoal.</translation>
    </message>
    <message>
        <source>The card's drive is not removable.</source>
        <translation>A unidade do cartão não é removível.</translation>
    </message>
    <message>
        <source>The card has no name of its own.</source>
        <translation>O cartão não tem nome próprio.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>A pasta %1 não existe.</translation>
    </message>
    <message>
        <source>Incident</source>
        <translation>Incidente</translation>
    </message>
    <message>
        <source>Mark the start of an incident</source>
        <translation>Marcar o início de um incidente</translation>
    </message>
    <message>
        <source>Mark the end of an incident</source>
        <translation>Marcar o fim de um incidente</translation>
    </message>
    <message>
        <source>Clear the marks</source>
        <translation>Limpar as marcas</translation>
    </message>
    <message>
        <source>Export incident...</source>
        <translation>Exportar incidente...</translation>
    </message>
    <message>
        <source>Export incident</source>
        <translation>Exportar incidente</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Span</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposição</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Sobreposição</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualidade</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Escolher...</translation>
    </message>
    <message>
        <source>Front camera only</source>
        <translation>Só a câmara dianteira</translation>
    </message>
    <message>
        <source>Rear camera only</source>
        <translation>Só a câmara traseira</translation>
    </message>
    <message>
        <source>Front and rear side by side</source>
        <translation>Dianteira e traseira lado a lado</translation>
    </message>
    <message>
        <source>Rear in a corner of the front</source>
        <translation>Traseira num canto da dianteira</translation>
    </message>
    <message>
        <source>High (larger file)</source>
        <translation>Alta (ficheiro maior)</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Compact (smaller file)</source>
        <translation>Compacta (ficheiro menor)</translation>
    </message>
    <message>
        <source>Time, speed, G values and position over the picture</source>
        <translation>Hora, velocidade, valores G e posição sobre a imagem</translation>
    </message>
    <message>
        <source>Choose the folder the incident goes into.</source>
        <translation>Escolha a pasta para onde vai o incidente.</translation>
    </message>
    <message>
        <source>This folder is on the memory card. Evidence is never written to the card it comes from: choose a folder on another disk.</source>
        <translation>Esta pasta está no cartão de memória. Uma prova nunca é escrita no cartão de onde vem: escolha uma pasta noutro disco.</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>A preparar</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>A copiar %1</translation>
    </message>
    <message>
        <source>Making incident.mp4</source>
        <translation>A criar incident.mp4</translation>
    </message>
    <message>
        <source>Writing the route and samples</source>
        <translation>A escrever o trajeto e as medições</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>Faltam cerca de %1 s</translation>
    </message>
    <message>
        <source>About %1 min %2 s left</source>
        <translation>Faltam cerca de %1 min %2 s</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>A cancelar...</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir a pasta</translation>
    </message>
    <message>
        <source>The incident is in %1</source>
        <translation>O incidente está em %1</translation>
    </message>
    <message>
        <source>The export was cancelled. Nothing of it was kept.</source>
        <translation>A exportação foi cancelada. Nada dela foi guardado.</translation>
    </message>
    <message>
        <source>The destination is full. Nothing of the export was kept.</source>
        <translation>O destino está cheio. Nada da exportação foi guardado.</translation>
    </message>
    <message>
        <source>The incident could not be exported: %1</source>
        <translation>Não foi possível exportar o incidente: %1</translation>
    </message>
    <message>
        <source>The marked span cannot be exported: %1</source>
        <translation>O intervalo marcado não pode ser exportado: %1</translation>
    </message>
    <message>
        <source>Play a clip, or mark the start and the end of an incident, first.</source>
        <translation>Reproduza primeiro um clipe, ou marque o início e o fim de um incidente.</translation>
    </message>
    <message>
        <source>The selected clips are not one stretch of a drive, or their length is unknown.</source>
        <translation>Os clipes escolhidos não são um só troço de uma viagem, ou a sua duração é desconhecida.</translation>
    </message>
    <message>
        <source>This drive cannot be exported: the length of its clips is unknown.</source>
        <translation>Esta viagem não pode ser exportada: a duração dos seus clipes é desconhecida.</translation>
    </message>
    <message>
        <source>Save still of both cameras...</source>
        <translation>Guardar imagem das duas câmaras...</translation>
    </message>
    <message>
        <source>Save still of both cameras</source>
        <translation>Guardar imagem das duas câmaras</translation>
    </message>
    <message>
        <source>The still could not be saved: %1</source>
        <translation>Não foi possível guardar a imagem: %1</translation>
    </message>
    <message>
        <source>Play a clip first.</source>
        <translation>Reproduza primeiro um clipe.</translation>
    </message>
    <message>
        <source>Drawing still.png</source>
        <translation>A criar still.png</translation>
    </message>
    <message>
        <source>The route in a corner, with the car on it</source>
        <translation>O trajeto num canto, com o carro nele</translation>
    </message>
</context>
</TS>
